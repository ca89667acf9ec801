#include "clinical/summary/panEstadPaciente.h"

#include "clinical/history/historiaComoTexto.h"
#include "clinical/summary/antecedentes.h"
#include "clinical/summary/foto.h"
#include "clinical/summary/tablasDelResumen.h"
#include "clinical/summary/vacunasDelPlan.h"
#include "core/security/alarmas.h"
#include "core/services/antecedentesPersonales.h"
#include "core/services/hallazgosPerinatales.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"

#include <QIcon>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace forms;
using clinical::Comando;
using clinical::Especialidad;
using clinical::Lugar;

namespace
{

constexpr int mayorLadoGuardado = 480;
constexpr qint64 diasDeEscolar = 1460, diasDeAdolescente = 4380;
const QString sinNota = u"Ayuda Memoria..."_s;

QString ruta(qint64 numero)
{
    return basic::programFile(u"images/FOTO_%1.bmp"_s.arg(numero, 9, 10, QLatin1Char('0')));
}

QString o(const basic::Value &valor, const QString &sinValor)
{
    return valor.isNull() ? sinValor : valor.text();
}

} // namespace

panEstadPaciente::panEstadPaciente() : Form(u"panEstadPaciente"_s)
{
    setWindowTitle(u"Ficha Resumen Global del paciente"_s);
    DBGrid1.setSource(Data1, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                              {u"Hora"_s, u"Hora"_s, u"HH:MM"_s, 50},
                              {u"Motivo"_s, u"Motivo"_s, {}, 150},
                              {u"Dr."_s, u"Dr"_s, {}, 100},
                              {u"Especialidad"_s, u"EspecialidadPLUS"_s, {}, 100}});
    agregarIdentidad();
    agregarComandos();
    agregarSemaforos();
    agregarEspecialidades();
    disponer();
    conectar();
}

void panEstadPaciente::conectar()
{
    connect(&Data1, &Data::reposition, this, [this] {
        const bool hay = Data1.hasRow();
        const qint64 lugar = hay ? Data1.recordset().absolutePosition() + 1 : 0;
        barra_.setCaption(u"Consulta número : %1"_s.arg(lugar));
    });
    connect(&DBGrid1, &DBGrid::accepted, this, &panEstadPaciente::abrirConsultas);
    connect(&label15, &QPushButton::clicked, this, &panEstadPaciente::abrirConsultas);
    connect(&label6, &QPushButton::clicked, this, &panEstadPaciente::nuevaConsulta);
    connect(&Check2, &QCheckBox::clicked, this, &panEstadPaciente::filtrarConsultas);
    connect(&Command_525, &QPushButton::clicked, this, &panEstadPaciente::editarPaciente);
    connect(&Command1, &QPushButton::clicked, this, &panEstadPaciente::agregarAntecedente);
    connect(&Command2, &QPushButton::clicked, this, &panEstadPaciente::quitarAntecedente);
    connect(&Command14, &QPushButton::clicked, this, &panEstadPaciente::recetar);
    connect(&cmdSalir, &QPushButton::clicked, this, &panEstadPaciente::unload);
    connect(&Label61, &Label::clicked, this, &panEstadPaciente::elegirAntitetanica);
    for (Label *lugar : {&imgFoto, &Image4, &Label63})
        connect(lugar, &Label::clicked, this, [this] {
            if (numero() != 0 && clinical::cambiaFoto(ruta(numero()), mayorLadoGuardado))
                mostrarFoto();
        });
    connect(&List2, &QListWidget::itemClicked, this,
            [](QListWidgetItem *renglon) { renglon->setToolTip(renglon->text()); });
    connect(&Command3, &QPushButton::clicked, this, [this] {
        screens::showChild("panArbol", tag(), u"Antecedentes Familiares de "_s + datos_["Text10"]->caption());
    });
    connect(&Command7, &QPushButton::clicked, this, [this] {
        screens::showModal(List2.count() == 0 ? screens::Window("panResPerinat")
                                              : screens::Window("panAntPerinatales"),
                           tag());
        llenar();
    });
    Command3.setEnabled(screens::has("panArbol"));
    Command7.setEnabled(screens::has("panResPerinat") && screens::has("panAntPerinatales"));
    Command14.setEnabled(bool(ports::emiteReceta));
}

// --- what is read ---

void panEstadPaciente::activate()
{
    ofrecerInformes();
    llenar();
}

/// A reading that fails leaves its own part of the page as it was.
void panEstadPaciente::paso(const std::function<void()> &lectura)
{
    basic::ignoring({dao::Error::TableNotFound, dao::Error::ItemNotFound, dao::Error::FieldNotFound,
                     dao::Error::BadParameters, dao::Error::RecordDeleted, dao::Error::NoCurrentRecord},
                    lectura);
}

void panEstadPaciente::llenar()
{
    const auto paciente = services::numeroDePaciente(tag());
    if (!paciente || llenando_)
        return;
    llenando_ = true; // a box told meanwhile wakes the page again when it closes
    const QScopeGuard lleno([this] { llenando_ = false; });
    MODULE11::RelojEspera();
    const QScopeGuard reloj([] { MODULE11::RelojNormal(); });
    guardarNota(); // what is typed is not covered by what is read
    persona_.numero = *paciente;
    mostrarFoto();
    paso([this] { pintarAlarmas(); });
    paso([this] { mostrarOftalmologia(); });
    paso([this] { mostrarOdontologia(); });
    paso([this] { gineco_.mostrar(numero()); });
    paso([this] {
        Text1.setText(
            MODULE11::BuscaCampo(
                u"Select count(paciente) as total from consulta where paciente = %1"_s.arg(numero()),
                u"total")
                .text());
    });
    paso([this] {
        mostrarConsultas(u"Select * from consulta where Dr = %1 and paciente = %2 order by fecha, hora"_s.arg(
            dao::quoted(MODULE11::DrActual), tag()));
    });
    paso([this] { mostrarAntecedentes(); });
    paso([this] { mostrarPaciente(); });
    habilitarPorEdad();
    asegurarPerinatal();
    paso([this] {
        List2.clear();
        List2.addItems(clinical::renglonesPerinatales(numero()));
    });
    mostrarSemaforos();
    paso([this] { mostrarVacunas(); });
    lector_.mostrar(numero(), clinical::historiaComoTexto(numero(), false));
}

void panEstadPaciente::mostrarFoto()
{
    const QPixmap foto(ruta(numero()));
    if (foto.isNull())
        imgFoto.setPixmap(QIcon(u":/icons/paciente.svg"_s).pixmap(resumen::ladoDeLaFoto / 2));
    else
        imgFoto.setPixmap(foto.scaled(resumen::ladoDeLaFoto, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void panEstadPaciente::mostrarConsultas(const QString &sql)
{
    Data1.setRecordSource(sql);
    Data1.refresh();
    if (Data1.hasRow())
        Data1.change([](dao::Recordset &consultas) { consultas.moveLast(); });
    Text21.setText(QString::number(Data1.recordset().rowCount()));
}

void panEstadPaciente::mostrarPaciente()
{
    auto fila = services::paciente(numero());
    if (!fila)
        return;
    const QString nombre = (*fila)[u"Apellido y Nombres"].text();
    setWindowTitle(nombre);
    Frame1.setTitle(u"HC %1 - Datos Personales"_s.arg(numero()));
    datos_["Text10"]->setCaption(nombre);
    for (const resumen::Dato &dato : resumen::datosDelRegistro)
        datos_.at(dato.control)->setCaption(o((*fila)[dato.campo], u"?"_s));
    notaGuardada_ = o((*fila)[u"ayuda memoria"], sinNota);
    Text14.setPlainText(notaGuardada_);

    const basic::Value nacimiento = (*fila)[u"Fecha de Nacimiento"];
    const basic::Date hoy = basic::today();
    if (nacimiento.isNull())
        msgBox(u"Error, falta cargar la fecha de nacimiento en la ficha del paciente!"_s, Icon::Critical,
               u"Error"_s);
    persona_.sexo = (*fila)[u"Sexo"].text();
    persona_.edad =
        clinical::edadDe(nacimiento.isNull() ? basic::dateAdd(u"d", -1, hoy) : nacimiento.date(), hoy);
    forms::setTag(datos_["Text7"].get(), nacimiento.text());
    const clinical::Edad &edad = persona_.edad;
    datos_["Text7"]->setCaption(QString::number(edad.anios));
    datos_["Text8"]->setCaption(QString::number(edad.meses));
    datos_["Text9"]->setCaption(QString::number(edad.dias));
    Label7.setToolTip(u"Dias de Vida:"_s + basic::format(edad.diasDeVida, u"###,##0") +
                      u" // Semanas de Vida:"_s +
                      basic::format(static_cast<double>(edad.diasDeVida) / 7, u"##,##0.0"));
    mostrarMadreOConyuge(*fila);
    if (!nacimiento.isNull())
        mostrarMedidas(nacimiento.date());
}

void panEstadPaciente::mostrarMedidas(const basic::Date &nacimiento)
{
    if (!ports::ultimasMedidas)
        return;
    const auto ultimas = ports::ultimasMedidas(numero(), persona_.sexo, nacimiento);
    for (auto &[i, rotulo] : lblMedida) {
        const ports::MedidaEnPalabras &medida = ultimas.at(static_cast<std::size_t>(i));
        rotulo->setCaption(medida.valor.isEmpty()   ? u"No registrado"_s
                           : medida.lugar.isEmpty() ? medida.valor
                                                    : medida.valor + u" · "_s + medida.lugar);
        rotulo->setEnabled(!medida.valor.isEmpty());
        rotulo->setToolTip(medida.valor.isEmpty()
                               ? QString()
                               : u"Medido el "_s + basic::format(medida.fecha, u"dd/mm/yyyy"));
    }
}

void panEstadPaciente::mostrarMadreOConyuge(dao::Recordset &paciente)
{
    if (persona_.edad.anios > 18) {
        Label12.setCaption(u"Situación Cunyugal:"_s);
        Label12.setToolTip({});
        datos_["Text11"]->setCaption(o(paciente[u"Situacion Conyugal"], u"<No registrado>"_s));
        return;
    }
    dao::Recordset pediatria =
        MODULE11::BaseDatos.openRecordset(u"Select * from pediatria where numero = %1"_s.arg(numero()));
    const basic::Value madre = pediatria.eof() ? basic::Value() : pediatria[u"Fecha Nacim Madre"].value();
    Label12.setCaption(u"Madre del paciente:"_s);
    Label12.setToolTip(u"F.Nac. : "_s + madre.text() + u" Edad : "_s +
                       (madre.isBlank()
                            ? u" ??"_s
                            : QString::number(basic::today().date().year() - madre.date().date().year())));
    datos_["Text11"]->setCaption(pediatria.eof() ? QString() : pediatria[u"Nombre de la Madre"].text());
}

/// Each command that is for an age is closed below it, and its panel is hidden.
void panEstadPaciente::habilitarPorEdad()
{
    const clinical::Edad &edad = persona_.edad;
    const auto poner = [this](const char *control, screens::Window ventana, bool tieneEdad) {
        boton(control).setEnabled(tieneEdad && screens::has(ventana));
        semaforos_.at(control)->setVisible(tieneEdad);
    };
    poner("command13", "panEscolar", edad.diasDeVida >= diasDeEscolar);
    poner("SsCommand4", "panVisual", edad.anios >= 4);
    poner("command21", "panAdole", edad.anios >= 12 || edad.diasDeVida >= diasDeAdolescente);
}

/// Every patient who is seen here owns a birth record.
void panEstadPaciente::asegurarPerinatal()
{
    try {
        dao::Recordset perinatal = MODULE11::BaseDatos.openRecordset(
            u"Select * from Perinatal where IdPaciente = %1"_s.arg(numero()));
        if (perinatal.eof()) {
            perinatal.addNew();
            perinatal[u"IdPaciente"] = numero();
            perinatal.update();
            perinatal.requery();
        }
        const basic::Value antitetanica = perinatal[u"FechaUltimaAntitetanica"];
        Label61.setCaption(antitetanica.isNull() ? u"<Click>"_s : antitetanica.text());
    } catch (const dao::Error &) {
        MODULE11::MuestraError(
            u"Ocurrió un error mientras se intentaba localizar los datos perinatales del paciente..."_s);
    }
}

void panEstadPaciente::mostrarAntecedentes()
{
    List8.clear();
    List8.addItems(clinical::antecedentesFamiliares(numero()));
    List3.clear();
    List3.addItems(services::antecedentesPersonales(numero()));
}

/// Green is set first: a state that cannot be read is no finding.
void panEstadPaciente::mostrarSemaforos()
{
    for (const resumen::Semaforo &semaforo : resumen::semaforos()) {
        Label &panel = *semaforos_.at(semaforo.comando);
        clinical::Estado estado;
        paso([&] { estado = semaforo.estado(persona_); });
        setBackColor(panel, fromColourValue(estado ? resumen::rojo : resumen::verde));
        panel.setToolTip(estado.value_or(QString()));
    }
}

void panEstadPaciente::mostrarVacunas()
{
    const std::vector<clinical::VacunaDelPlan> plan = clinical::vacunasDelPlan(persona_);
    for (auto &[i, casilla] : Check1) {
        const auto lugar = static_cast<std::size_t>(i);
        const bool usada = lugar < plan.size();
        casilla->setVisible(usada);
        if (!usada)
            continue;
        casilla->setText(plan[lugar].descripcion);
        forms::setTag(casilla.get(), plan[lugar].vacuna);
        casilla->setChecked(plan[lugar].indicada.has_value());
        casilla->setToolTip(plan[lugar].indicada
                                ? u"Indicada el "_s + basic::format(*plan[lugar].indicada, u"dd mmm yyyy")
                                : QString());
    }
}

void panEstadPaciente::mostrarOftalmologia()
{
    static constexpr const char16_t *columnas[] = {u"aguVisOdCCC", u"aguVisOiCCC", u"aguVisOdSC",
                                                   u"aguVisOiSc",  u"antRecCerOi", u"antRecCerOd",
                                                   u"antRecLejOi", u"antRecLejOd"};
    dao::Recordset ultima = MODULE11::BaseDatos.openRecordset(
        u"Select top 1 * from consultaOftalmo where paciente = %1 order by fecha desc, idConsulta desc"_s.arg(
            numero()));
    const auto valor = [&](QStringView columna) { return ultima.eof() ? QString() : ultima[columna].text(); };
    for (auto &[i, rotulo] : Labelff)
        rotulo->setCaption(valor(columnas[i]));
    const QString lectura = valor(u"Lectura");
    lblLectura.setCaption(ultima.eof()             ? QString()
                          : lectura == u"Normal"   ? u"Ok"_s
                          : lectura == u"Alterada" ? u"Mal"_s
                                                   : u"½"_s);
    mConRP.setPlainText(valor(u"r_p"));
}

void panEstadPaciente::mostrarOdontologia()
{
    List7.clear();
    for (dao::Recordset practica = MODULE11::BaseDatos.openRecordset(
             u"Select * from Odontograma where IdPaciente = %1 order by fecha"_s.arg(numero()));
         !practica.eof(); practica.moveNext())
        List7.addItem(practica[u"Fecha"].text() + u" --> "_s + practica[u"Descripcion"].text());
}

/// Icons of one alarm bear its one mark, which is kept under the first of them.
void panEstadPaciente::pintarAlarmas()
{
    for (auto &[nombre, icono] : alarmas_)
        setBackColor(*icono, palette().color(QPalette::Window));
    MODULE11::PintaAlarmas(*this, numero());
    std::map<std::string, Label *> primera;
    for (const Comando &comando : clinical::comandos())
        if (*comando.alarma) {
            const auto [lugar, nueva] = primera.try_emplace(comando.tema, alarmas_.at(comando.alarma).get());
            if (!nueva)
                setBackColor(*alarmas_.at(comando.alarma), backColor(*lugar->second));
        }
}

#include "moc_panEstadPaciente.cpp"
