// What stands where on the patient's page; what it reads is in panEstadPaciente.cpp,
// what a person does on it in panEstadPacienteActos.cpp.
#include "clinical/summary/panEstadPaciente.h"
#include "clinical/summary/tablasDelResumen.h"
#include "core/session/screens.h"
#include "platform/forms/colour.h"

#include <QIcon>
#include <QLayout>

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
    Image4.setPixmap(QIcon(u":/icons/agregar.svg"_s).pixmap(14, 14));
    for (Label *lugar : {&imgFoto, &Image4, &Label63}) {
        lugar->setCursor(Qt::PointingHandCursor);
        lugar->setToolTip(u"La foto del paciente, de un archivo"_s);
    }
    Label61.setCursor(Qt::PointingHandCursor);
    Text14.setFixedHeight(Text14.fontMetrics().height() * 5 / 2);
    for (int i = 0; i < resumen::medidas; ++i)
        lblMedida.add(i).setWordWrap(true);
    Text1.setReadOnly(true);
    Text21.setReadOnly(true);
    Text1.setMaximumWidth(60);
    Text21.setMaximumWidth(60);
    Text14.installEventFilter(this);
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
        ToolbarButton &icono = icoesp.add(especialidad.icono, QString::fromUtf8(especialidad.nombre),
                                          QString::fromLatin1(especialidad.dibujo));
        icono.setCheckable(true);
        icono.setIconSize({22, 22});
        icono.setMinimumWidth(0);
        forms::setTag(&icono, QString::fromUtf8(especialidad.nombre));
        connect(&icono, &QToolButton::clicked, this,
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
        return Column{Grid(2, comandosDe(Lugar::Pediatria)), Grid(4, vacunas)};
    }
    case 1:
        return Column{Grid(2, comandosDe(Lugar::Alergia)), Stretch()};
    case 2:
        return Column{Grid(2, comandosDe(Lugar::Oftalmologia)),
                      Row{Expanding(Group(u"Agudeza Visual"_s, Fields{{u"O.D. c/c :"_s, Labelff(0)},
                                                                      {u"O.I. c/c :"_s, Labelff(1)},
                                                                      {u"O.D. s/c :"_s, Labelff(2)},
                                                                      {u"O.I. s/c :"_s, Labelff(3)}})),
                          Expanding(Group(u"Anteojos Recetados"_s, Fields{{u"Cerca O.I. :"_s, Labelff(4)},
                                                                          {u"Cerca O.D. :"_s, Labelff(5)},
                                                                          {u"Lejos O.I. :"_s, Labelff(6)},
                                                                          {u"Lejos O.D. :"_s, Labelff(7)}})),
                          Group(u"Lectura"_s, lblLectura)},
                      Expanding(Group(u"Ultima receta"_s, mConRP))};
    case 3:
        return Column{Grid(2, comandosDe(Lugar::Cardiologia)), Stretch()};
    case 5:
        return Column{Grid(2, comandosDe(Lugar::Odontologia)),
                      Expanding(Group(u"Prácticas odontológicas realizadas :"_s, List7))};
    default:
        return Column{Grid(2, comandosDe(Lugar::Ginecologia)),
                      Group(u"Resumen ginecológico"_s, gineco_.disposicion()), Stretch()};
    }
}

Item panEstadPaciente::especialidades()
{
    for (const int indice : {0, 1, 2, 3, 5, 6}) {
        auto *contenido = new QWidget;
        contenido->setObjectName(u"panelEspecialidad(%1)"_s.arg(indice));
        setContents(contenido, panel(indice));
        contenido->layout()->setContentsMargins({});
        paneles_.addWidget(contenido);
        panelDe_[indice] = contenido;
    }
    QFont destacada = lblEspec.font();
    destacada.setBold(true);
    lblEspec.setFont(destacada);
    return paneles_;
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
    return Group(Frame1, Column{Row{Column{imgFoto, Row{Image4, Label63}},
                                    Expanding(Column{*datos_.at("Text10"),
                                                     Row{Fields{{u"Sexo :"_s, *datos_.at("Text12")}},
                                                         Fields{{u"Grupo :"_s, *datos_.at("Text13")}}},
                                                     Row{Command_525, Stretch()}})},
                                Row{Label7, edad("Text7", u"años."_s), edad("Text8", u"meses."_s),
                                    edad("Text9", u"días."_s), Stretch()},
                                Fields(filas), Text14});
}

Item panEstadPaciente::medidas()
{
    return Group(u"Ultimas medidas"_s, Fields{{u"Peso :"_s, lblMedida(0)},
                                              {u"Talla :"_s, lblMedida(1)},
                                              {u"P.C. :"_s, lblMedida(2)},
                                              {u"I.M.C. :"_s, lblMedida(3)}});
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
                 Column{Row{label6, label15, Stretch(), Fields{{u"Consultas totales :"_s, Text1}}},
                        Row{Expanding(barra_), Fields{{u"Registros :"_s, Text21}}},
                        Row{Check2, Stretch(), lblEspec}, Expanding(DBGrid1)});
}

/// What opens from every speciality: what follows the patient beside its data, the rest on the last row,
/// which stays in sight with the button that closes.
Item panEstadPaciente::seguimiento()
{
    return Grid(2, comandosDe(Lugar::Seguimiento));
}

Item panEstadPaciente::barra()
{
    std::vector<Item> comandos = comandosDe(Lugar::Barra);
    comandos.insert(comandos.end(), {Command14, Stretch(), cmdSalir});
    return Row(comandos);
}

/// Three columns: who it is and how big; the speciality with its visits; the history as text and what came
/// before.
void panEstadPaciente::disponer()
{
    // The page is to be seen whole: what scrolls by itself takes the room that is left, not the one it would
    // like.
    for (const auto &[control, alto] : std::initializer_list<std::pair<QWidget *, int>>{
             {&List2, 40}, {&List3, 40}, {&List8, 40}, {&List7, 60}, {&DBGrid1, 70}, {&mConRP, 60}}) {
        control->setMinimumHeight(alto);
        control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
    paneles_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    std::vector<Item> iconos;
    for (auto &[i, icono] : icoesp)
        iconos.emplace_back(*icono);
    iconos.push_back(Stretch());
    const Item persona = Column{identidad(), medidas(), seguimiento(), Stretch()};
    const Item visitas = Column{especialidades(), Expanding(registroDeConsultas())};
    const Item historia = Column{Expanding(lector_, 2), Expanding(antecedentes(), 3)};
    const Item clinica = Column{Row(iconos), Expanding(Row{Expanding(visitas, 17), Expanding(historia, 10)})};
    setContents(this, Column{Expanding(Row{persona, Expanding(clinica)}), barra()});
    Frame1.setMinimumWidth(resumen::anchoDeLaPersona);
    for (QPushButton *boton : findChildren<QPushButton *>())
        boton->setMaximumHeight(boton->fontMetrics().height() + resumen::aireDeLosBotones);
    resize(1180, 640);
}
