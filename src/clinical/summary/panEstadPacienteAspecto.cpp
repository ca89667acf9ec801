// What stands where on the patient's page; what it reads and does is in panEstadPaciente.cpp.
#include "clinical/summary/panEstadPaciente.h"
#include "clinical/summary/tablasDelResumen.h"
#include "core/session/screens.h"
#include "platform/forms/colour.h"

using namespace Qt::StringLiterals;
using namespace forms;
using clinical::Comando;
using clinical::Especialidad;
using clinical::Lugar;

void panEstadPaciente::agregarIdentidad()
{
    for (const char *nombre :
         {"Text7", "Text8", "Text9", "Text10", "Text11", "Text12", "Text13", "Text20", "Text27"}) {
        auto dato = std::make_unique<Label>(QString::fromLatin1(nombre));
        dato->setTextFormat(Qt::PlainText);
        dato->setCursor(Qt::PointingHandCursor);
        connect(dato.get(), &Label::clicked, this, &panEstadPaciente::editarPaciente);
        datos_[nombre] = std::move(dato);
    }
    QFont destacada = font();
    destacada.setBold(true);
    destacada.setPointSizeF(destacada.pointSizeF() * 1.15);
    datos_["Text10"]->setFont(destacada);
    datos_["Text10"]->setWordWrap(true);
    imgFoto.setFixedSize(resumen::ladoDeLaFoto);
    imgFoto.setAlignment(Qt::AlignCenter);
    imgFoto.setFrameShape(QFrame::StyledPanel);
    imgFoto.setCursor(Qt::PointingHandCursor);
    imgFoto.setToolTip(u"click p/obtener"_s);
    Label61.setCursor(Qt::PointingHandCursor);
    Text14.setFixedHeight(Text14.fontMetrics().height() * 3);
    Text1.setReadOnly(true);
    Text21.setReadOnly(true);
    Text1.setMaximumWidth(60);
    Text21.setMaximumWidth(60);
    Text14.installEventFilter(this);
    RT1.setReadOnly(true);
    mConRP.setReadOnly(true);
}

void panEstadPaciente::agregarComandos()
{
    for (const Comando &comando : clinical::comandos()) {
        const auto ventana = screens::Window::find(QString::fromLatin1(comando.ventana));
        auto boton = std::make_unique<CommandButton>(QString::fromLatin1(comando.control),
                                                     QString::fromUtf8(comando.caption));
        boton->setEnabled(ventana && screens::has(*ventana));
        connect(boton.get(), &QPushButton::clicked, this, [this, &comando] { abrirComando(comando); });
        comandos_[comando.control] = std::move(boton);
        if (!*comando.alarma)
            continue;
        auto alarma = std::make_unique<Label>(QString::fromLatin1(comando.alarma));
        forms::setTag(alarma.get(), u"ALARMA"_s);
        alarma->setFixedSize(14, 14);
        alarma->setFrameShape(QFrame::StyledPanel);
        alarma->setCursor(Qt::PointingHandCursor);
        alarma->setToolTip(u"Alarma: %1"_s.arg(QString::fromUtf8(comando.tema)));
        connect(alarma.get(), &Label::clicked, this, [this, &comando] { marcarAlarma(comando); });
        alarmas_[comando.alarma] = std::move(alarma);
    }
}

void panEstadPaciente::agregarSemaforos()
{
    for (const resumen::Semaforo &semaforo : resumen::semaforos()) {
        auto panel = std::make_unique<Label>(QString::fromLatin1(semaforo.control));
        panel->setFixedSize(10, 22);
        panel->setCursor(Qt::PointingHandCursor);
        setBackColor(*panel, fromColourValue(resumen::verde));
        connect(panel.get(), &Label::clicked, &boton(semaforo.comando), &QPushButton::click);
        semaforos_[semaforo.comando] = std::move(panel);
    }
}

void panEstadPaciente::agregarEspecialidades()
{
    for (const Especialidad &especialidad : clinical::especialidadesDelResumen()) {
        CommandButton &icono = icoesp.add(especialidad.icono, QString::fromUtf8(especialidad.nombre));
        icono.setCheckable(true);
        icono.setAutoDefault(false);
        forms::setTag(&icono, QString::fromUtf8(especialidad.nombre));
        connect(&icono, &QPushButton::clicked, this,
                [this, &especialidad] { elegirEspecialidad(especialidad); });
    }
    for (int i = 0; i < resumen::casillasDeVacunas; ++i) {
        CheckBox &casilla = Check1.add(i, QString());
        connect(&casilla, &QCheckBox::clicked, this, [this] {
            mostrarVacunas(); // what is given is noted in the plan, not here
            if (boton("Command90").isEnabled())
                boton("Command90").click();
        });
    }
    for (int i = 0; i < 8; ++i)
        Labelff.add(i);
}

std::vector<Item> panEstadPaciente::comandosDe(Lugar lugar)
{
    std::vector<Item> todos;
    for (const Comando &comando : clinical::comandos()) {
        if (comando.lugar != lugar)
            continue;
        std::vector<Item> fila;
        if (const auto semaforo = semaforos_.find(comando.control); semaforo != semaforos_.end())
            fila.emplace_back(*semaforo->second);
        fila.push_back(Expanding(boton(comando.control)));
        if (*comando.alarma)
            fila.emplace_back(*alarmas_.at(comando.alarma));
        todos.push_back(Row(fila));
    }
    return todos;
}

Item panEstadPaciente::panel(int indice)
{
    switch (indice) {
    case 0: {
        std::vector<Item> vacunas;
        for (auto &[i, casilla] : Check1)
            vacunas.emplace_back(*casilla);
        return Column{Grid(3, comandosDe(Lugar::Pediatria)), Grid(5, vacunas)};
    }
    case 1:
        return Column{Grid(3, comandosDe(Lugar::Alergia)), Stretch()};
    case 2:
        return Column{Grid(3, comandosDe(Lugar::Oftalmologia)),
                      Row{Group(u"Agudeza Visual"_s, Fields{{u"O.D. c/c :"_s, Labelff(0)},
                                                            {u"O.I. c/c :"_s, Labelff(1)},
                                                            {u"O.D. s/c :"_s, Labelff(2)},
                                                            {u"O.I. s/c :"_s, Labelff(3)}}),
                          Group(u"Anteojos Recetados"_s, Fields{{u"Cerca O.I. :"_s, Labelff(4)},
                                                                {u"Cerca O.D. :"_s, Labelff(5)},
                                                                {u"Lejos O.I. :"_s, Labelff(6)},
                                                                {u"Lejos O.D. :"_s, Labelff(7)}}),
                          Group(u"Lectura"_s, lblLectura), Expanding(Group(u"Ultima receta"_s, mConRP))}};
    case 3:
        return Column{Grid(3, comandosDe(Lugar::Cardiologia)), Stretch()};
    case 5:
        return Column{Grid(3, comandosDe(Lugar::Odontologia)),
                      Expanding(Group(u"Prácticas odontológicas realizadas :"_s, List7))};
    default:
        return Column{Grid(3, comandosDe(Lugar::Ginecologia)),
                      Group(u"Resumen ginecológico"_s, gineco_.disposicion()), Stretch()};
    }
}

Item panEstadPaciente::especialidades()
{
    std::vector<Item> iconos;
    for (auto &[i, icono] : icoesp)
        iconos.emplace_back(*icono);
    for (const int indice : {0, 1, 2, 3, 5, 6}) {
        auto *contenido = new QWidget;
        contenido->setObjectName(u"panelEspecialidad(%1)"_s.arg(indice));
        setContents(contenido, panel(indice));
        paneles_.addWidget(contenido);
        panelDe_[indice] = contenido;
    }
    QFont destacada = lblEspec.font();
    destacada.setBold(true);
    lblEspec.setFont(destacada);
    return Column{Grid(4, iconos), paneles_};
}

Item panEstadPaciente::identidad()
{
    std::vector<FieldRow> filas;
    for (const resumen::Dato &dato : resumen::datosDelRegistro)
        if (dato.enFila)
            filas.emplace_back(QString::fromUtf8(dato.rotulo), *datos_.at(dato.control));
    filas.emplace_back(Label12, *datos_.at("Text11"));
    filas.emplace_back(u"Ultima antitetánica :"_s, Label61);
    const auto edad = [this](const char *control, const QString &unidad) {
        return Row{*datos_.at(control), new QLabel(unidad)};
    };
    return Group(
        Frame1, Column{Row{imgFoto,
                           Expanding(Column{Row{Expanding(*datos_.at("Text10")), Command_525},
                                            Row{Label7, edad("Text7", u"años."_s), edad("Text8", u"meses."_s),
                                                edad("Text9", u"días."_s), Stretch()},
                                            Row{Fields{{u"Sexo :"_s, *datos_.at("Text12")}},
                                                Fields{{u"Grupo :"_s, *datos_.at("Text13")}}, Stretch()}})},
                       Fields(filas), Text14});
}

Item panEstadPaciente::antecedentes()
{
    const auto lista = [](const QString &titulo, ListBox &renglones, Items botones) {
        return Expanding(Group(titulo, Row{Expanding(renglones), Column(botones)}));
    };
    return Column{
        lista(u"Antecedentes Personales"_s, List3, {Command1, Command2, Stretch()}),
        lista(u"Antecedentes Patológicos Familiares"_s, List8, {Command3, Stretch()}),
        lista(u"Perinatales"_s, List2, {Command7, Stretch()}),
    };
}

Item panEstadPaciente::registroDeConsultas()
{
    return Group(u"Registro de Consultas"_s,
                 Column{Row{label6, label15, lblEspec, Stretch(), Fields{{u"Consultas totales :"_s, Text1}},
                            Fields{{u"Registros :"_s, Text21}}},
                        Row{barra_, Stretch(), Check2}, Expanding(DBGrid1)});
}

/// What opens from every speciality. The last row, with the button that closes, stays in sight.
std::pair<Item, Item> panEstadPaciente::barra()
{
    std::vector<Item> arriba = comandosDe(Lugar::Barra);
    const auto mitad = arriba.begin() + static_cast<std::ptrdiff_t>(arriba.size() / 2 + 1);
    std::vector<Item> abajo(mitad, arriba.end());
    arriba.erase(mitad, arriba.end());
    abajo.insert(abajo.end(), {Command14, Stretch(), cmdSalir});
    return {Row(arriba), Row(abajo)};
}

void panEstadPaciente::disponer()
{
    // The page is to be seen whole: what scrolls by itself takes the room that is left, not the one it would
    // like.
    for (const auto &[control, alto] : std::initializer_list<std::pair<QWidget *, int>>{{&List2, 40},
                                                                                        {&List3, 40},
                                                                                        {&List8, 40},
                                                                                        {&List7, 60},
                                                                                        {&DBGrid1, 84},
                                                                                        {&RT1, 56},
                                                                                        {&mConRP, 60}}) {
        control->setMinimumHeight(alto);
        control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
    paneles_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    const auto [arriba, abajo] = barra();
    setContents(
        this, Column{
                  Expanding(Row{
                      Expanding(Column{identidad(), Expanding(antecedentes())}, 3),
                      Expanding(Column{especialidades(),
                                       Splitter(Qt::Vertical, {{registroDeConsultas(), 3}, {Item(RT1), 2}})},
                                7),
                  }),
                  arriba,
                  abajo,
              });
    resize(1180, 640);
}
