#include "core/reports/papel.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/control/panControlSano.h"
#include "paediatrics/control/panscree.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

#include <QFocusEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int altoDeSeccion = 300;
constexpr std::array nombresDeMedidas = {"Peso :", "Talla :", "P. cefálico :", "I.M.C. :"};
constexpr std::array maduraciones = {"Coincide con la edad cronológica",
                                     "Adelantado para la edad cronológica",
                                     "Retrasado para la edad cronológica"};

void rotular(ListBox &lista, const QString &nombre)
{
    lista.setAccessibleName(nombre);
    lista.setWordWrap(true);
}

} // namespace

panControlSano::panControlSano() : Form(u"panControlSano"_s)
{
    setWindowTitle(u"Control Sano del Paciente"_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    Label1.setFont(destacada);
    mFecha.setValue(basic::today());
    Command8.setEnabled(bool(ports::registraControlDeSalud));
    seccionActual_.setExclusive(true);
    const Item izquierda = secciones();
    paginas_.setMinimumHeight(altoDeSeccion);
    setContents(this, Column{Row{lblPaciente, Label1, Stretch(), Fields{{u"Fecha :"_s, mFecha}}},
                             Expanding(Row{izquierda, Expanding(&paginas_)}),
                             Row{Command10, Stretch(), Command8, Command9}});
    resize(1000, 640);
    seccionActual_.buttons().constFirst()->click();
    connect(&Command8, &QPushButton::clicked, this, &panControlSano::guardar);
    connect(&Command9, &QPushButton::clicked, this, &panControlSano::unload);
    connect(&Command10, &QPushButton::clicked, this, &panControlSano::imprimir);
}

/// The sections in their order, each with its page.
Item panControlSano::secciones()
{
    const auto abre = [this](screens::Window ventana) {
        return [this, ventana] { screens::showModal(ventana, tag()); };
    };
    const auto lista = [](ListBox &lineas, const QString &nombre, CommandButton &comando) {
        rotular(lineas, nombre);
        return Group(nombre, Column{Expanding(lineas), Row{comando, Stretch()}});
    };
    seccion(20, u"&Problemas detectados"_s, problemas());
    seccion(21, u"Antr&opometría"_s, antropometria());
    seccion(22, u"&Examen Físico"_s, examenFisico());
    seccion(23, u"&Binomio madre-hijo"_s, binomio());
    seccion(24, u"&Vacunas"_s,
            lista(List7, u"Dosis que faltan"_s,
                  boton(44, u"Mostrar Tabla..."_s, u"vacunas"_s, abre("panPlanVacunas"))));
    seccion(25, u"Ali&mentación"_s,
            lista(List9, u"Alimentos que recibe"_s,
                  boton(45, u"Abrir ficha alimenticia..."_s, u"abrir"_s, abre("panAlimentacion"))));
    seccion(26, u"&Otras Indicaciones"_s, indicaciones());
    seccion(13, u"Antec. Patológicos &Perinatales"_s,
            lista(List2, u"Antecedentes perinatales"_s,
                  boton(46, u"Abrir ficha perinatal..."_s, u"neonatologia"_s, abre("panAntPerinatales"))));
    seccion(28, u"Antec. Patologicos &Familiares"_s,
            lista(List1, u"Antecedentes Familiares"_s,
                  boton(47, u"Abrir arbol genealogico..."_s, u"familia"_s, abre("panArbol"))));
    seccion(34, u"Maduración &neurológica"_s, maduracionNeurologica());
    seccion(30, u"Escolaridad y Aprendi&zaje"_s,
            lista(List10, u"Escolaridad y socialización"_s,
                  boton(48, u"Abrir Ficha..."_s, u"abrir"_s, abre("panEscolar"))));
    seccion(32, u"&Screening Metabólico"_s,
            Column{screening_.contenido(),
                   Row{boton(49, u"Mostrar parametros..."_s, u"abrir"_s,
                             [this] {
                                 guardarLoPropio();
                                 panscree ventana;
                                 ventana.setTag(tag());
                                 ventana.showModal();
                                 mostrarScreening();
                             }),
                       Stretch()},
                   Stretch()});
    seccion(31, u"C&ondición Familiar"_s, condicionFamiliar());
    seccion(33, u"Maduración Se&xual"_s, maduracionSexual());
    seccion(35, u"Antec. Patologicos Personales"_s, personales());
    std::vector<Item> botones;
    for (QAbstractButton *comando : seccionActual_.buttons())
        botones.emplace_back(comando);
    botones.push_back(Stretch());
    return Column(std::move(botones));
}

void panControlSano::seccion(int comando, const QString &caption, Item contenido)
{
    auto *boton = new CommandButton(u"Command%1"_s.arg(comando), caption);
    boton->setParent(this);
    boton->setCheckable(true);
    boton->installEventFilter(this);
    seccionActual_.addButton(boton);
    comandos_[comando] = boton;
    auto *pagina = new QWidget;
    setContents(pagina, std::move(contenido));
    paginas_.addWidget(pagina);
    connect(boton, &QPushButton::clicked, this, [this, pagina] { paginas_.setCurrentWidget(pagina); });
}

/// Some sections share their letter, which then goes from one of them to the next.
bool panControlSano::eventFilter(QObject *control, QEvent *event)
{
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent *>(event)->reason() == Qt::ShortcutFocusReason)
        if (auto *boton = qobject_cast<CommandButton *>(control); boton && !boton->isChecked())
            boton->click();
    return Form::eventFilter(control, event);
}

CommandButton &panControlSano::boton(int numero, const QString &caption, const QString &icono,
                                     std::function<void()> trabajo)
{
    auto *boton = new CommandButton(u"Command%1"_s.arg(numero), caption, icono);
    boton->setParent(this);
    connect(boton, &QPushButton::clicked, this, std::move(trabajo));
    return *boton;
}

Item panControlSano::problemas()
{
    rotular(List5, u"Problemas detectados"_s);
    CommandButton &agregar = boton(1, u"Agregar..."_s, u"agregar"_s, [this] { agregarProblema(); });
    agregar.setEnabled(bool(ports::eligeDiagnostico));
    return Group(
        u"Problemas detectados (la visita toma los cinco primeros)"_s,
        Row{Expanding(List5),
            Column{agregar, boton(2, u"Quitar"_s, u"quitar"_s, [this] { quitarDe(List5); }), Stretch()}});
}

Item panControlSano::antropometria()
{
    std::vector<FieldRow> filas;
    for (int i = 0; i < static_cast<int>(nombresDeMedidas.size()); ++i)
        filas.emplace_back(QString::fromUtf8(nombresDeMedidas[static_cast<std::size_t>(i)]),
                           lblMedida.add(i));
    return Group(u"Últimas medidas"_s,
                 Column{Fields(std::move(filas)),
                        Row{boton(3, u"Tomar medidas..."_s, u"medidas"_s,
                                  [this] {
                                      if (paediatrics::TomarMedidas(paciente_))
                                          mostrarLoAjeno();
                                  }),
                            boton(4, u"Editar medidas..."_s, u"editar"_s,
                                  [this] { screens::showModal("panCrecimiento", tag()); }),
                            boton(5, u"Mostrar curvas..."_s, u"curvas"_s,
                                  [this] { screens::showModal("panMuesCurvas", tag()); }),
                            Stretch()},
                        Stretch()});
}

Item panControlSano::examenFisico()
{
    rotular(List3, u"Datos positivos del examen físico"_s);
    connect(&Text1, &QLineEdit::returnPressed, this, &panControlSano::agregarDato);
    return Column{
        Expanding(Group(u"Datos positivos del examen físico"_s,
                        Column{Row{Expanding(Fields{{u"Dato positivo :"_s, Text1}}),
                                   boton(6, u"Agregar"_s, u"agregar"_s, [this] { agregarDato(); })},
                               Expanding(Row{Expanding(List3), Column{boton(7, u"Quitar"_s, u"quitar"_s,
                                                                            [this] { quitarDe(List3); }),
                                                                      Stretch()}})})),
        Group(u"Última tensión arterial"_s,
              Column{lblTension, Row{boton(11, u"Tensión arterial..."_s, u"cardiologia"_s,
                                           [this] { screens::showModal("panTension", tag()); }),
                                     boton(12, u"Agudeza visual..."_s, u"oftalmologia"_s,
                                           [this] { screens::showModal("panVisual", tag()); }),
                                     Stretch()}}),
    };
}

Item panControlSano::binomio()
{
    std::vector<Item> preguntas;
    for (const char16_t *pregunta : sano::preguntasDelBinomio) {
        sano::Pregunta &nueva =
            preguntas_.emplace_back(Option1, sano::Pregunta::Palabras{u"Sí"_s, u"No"_s, u"No se preguntó"_s});
        preguntas.push_back(Group(QString::fromUtf16(pregunta), nueva.contenido()));
    }
    preguntas.push_back(Stretch());
    return Column(std::move(preguntas));
}

Item panControlSano::indicaciones()
{
    rotular(List4, u"Otras indicaciones"_s);
    const auto agregarEscrita = [this] {
        agregarIndicacion({Text2.text().trimmed()});
        Text2.clear();
    };
    connect(&Text2, &QLineEdit::returnPressed, this, agregarEscrita);
    CommandButton &deLaTabla = boton(17, u"De la tabla..."_s, u"abrir"_s, [this] { elegirIndicacion(); });
    deLaTabla.setEnabled(bool(ports::eligeTratamiento));
    return Group(u"Otras indicaciones (la visita toma las cinco primeras)"_s,
                 Column{Row{Expanding(Fields{{u"Indicación :"_s, Text2}}),
                            boton(16, u"Agregar"_s, u"agregar"_s, agregarEscrita)},
                        Expanding(Row{Expanding(List4),
                                      Column{deLaTabla,
                                             boton(18, u"Quitar"_s, u"quitar"_s, [this] { quitarDe(List4); }),
                                             Stretch()}})});
}

Item panControlSano::maduracionNeurologica()
{
    const QString titulo = u"Problemas detectados y registrados durante el examen neurológico"_s;
    rotular(List6, titulo);
    return Column{Expanding(Group(titulo, List6)), Group(u"Hitos motores"_s, hitos_)};
}

Item panControlSano::condicionFamiliar()
{
    CommandButton &abrir = boton(50, u"Abrir Ficha Personal..."_s, u"familia"_s, [this] {
        if (ports::editaCondicionFamiliar(paciente_))
            mostrarLoAjeno();
    });
    abrir.setEnabled(bool(ports::editaCondicionFamiliar));
    return Group(u"Padres"_s, Column{lblPadres, Row{abrir, Stretch()}, Stretch()});
}

Item panControlSano::maduracionSexual()
{
    std::vector<Item> opciones;
    for (const char *opcion : maduraciones) {
        OptionButton &boton = Option2.add(Option2.size(), QString::fromUtf8(opcion));
        maduracion_.addButton(&boton);
        opciones.emplace_back(boton);
    }
    opciones.push_back(
        Row{boton(51, u"Adolescencia..."_s, u"abrir"_s, [this] { screens::showModal("panAdole", tag()); }),
            Stretch()});
    opciones.push_back(Stretch());
    return Group(u"Maduración sexual"_s, Column(std::move(opciones)));
}

Item panControlSano::personales()
{
    rotular(List8, u"Antecedentes Personales"_s);
    CommandButton &agregar = boton(40, u"Agregar..."_s, u"agregar"_s, [this] { agregarAntecedente(); });
    agregar.setEnabled(bool(ports::eligePatologia));
    const auto quitar = [this] {
        if (List8.selectedItems().isEmpty())
            return;
        quitarDe(List8);
        guardarAntecedentes();
    };
    return Group(
        u"Antecedentes Personales"_s,
        Row{Expanding(List8), Column{agregar, boton(41, u"Quitar"_s, u"quitar"_s, quitar), Stretch()}});
}

/// What the screen shows, section by section; an empty one stays out.
void panControlSano::imprimir()
{
    const QString titulo = u"Control de Salud de %1"_s.arg(nombre_);
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    papel.escribir(u"%1   %2"_s.arg(basic::dateText(mFecha.value()), Label1.caption()), 11);
    QStringList medidas;
    for (const auto &[i, etiqueta] : lblMedida)
        medidas +=
            QString::fromUtf8(nombresDeMedidas[static_cast<std::size_t>(i)]) + u' ' + etiqueta->caption();
    QStringList binomio;
    for (std::size_t i = 0; i < preguntas_.size(); ++i)
        if (!preguntas_[i].respuesta().isNull())
            binomio += QString::fromUtf16(sano::preguntasDelBinomio[i]) + u' ' + preguntas_[i].enPalabras();
    const QAbstractButton *maduracion = maduracion_.checkedButton();
    const std::pair<const char *, QStringList> partes[] = {
        {"Problemas detectados", List5.lines()},
        {"Medidas", medidas},
        {"Datos positivos del examen físico", List3.lines()},
        {"Tensión arterial", lblTension.caption().split(u'\n')},
        {"Binomio madre-hijo", binomio},
        {"Vacunas que faltan", List7.lines()},
        {"Alimentación", List9.lines()},
        {"Otras indicaciones", List4.lines()},
        {"Antecedentes perinatales", List2.lines()},
        {"Antecedentes familiares", List1.lines()},
        {"Antecedentes personales", List8.lines()},
        {"Examen neurológico", List6.lines()},
        {"Escolaridad", List10.lines()},
        {"Screening metabólico", screening_.enPalabras()},
        {"Maduración sexual", maduracion ? QStringList(maduracion->text()) : QStringList()},
    };
    for (const auto &[nombre, lineas] : partes) {
        if (lineas.isEmpty())
            continue;
        papel.escribir(u'\n' + QString::fromUtf8(nombre), 11, true);
        papel.escribir(lineas.join(u'\n'), 10);
    }
    if (hitos_.muestraEdad())
        papel.dibujar(hitos_);
    papel.terminar();
}
