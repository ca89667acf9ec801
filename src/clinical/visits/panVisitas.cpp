#include "clinical/visits/panVisitas.h"

#include "clinical/visits/nuevaConsulta.h"
#include "core/records/filas.h"
#include "core/reports/exportaHtml.h"
#include "core/security/eventos.h"
#include "core/security/niveles.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace consultas;
using namespace forms;

namespace
{

enum { cMotivo = 1, cHora, cPulso, cTemperatura, cRespiracion }; // mDato
enum { cTalla = 3, cPeso };                                      // Text3
enum { cEstadoGeneral = 3, cEstadoNutricional };                 // Text1

constexpr int anchoDelListado = 800;
const QString edicion = u"EDICION DE CONSULTA "_s;

/// How the audit tells a change in a list.
struct Suceso {
    const char *agregado, *borrado, *nombre;
};
constexpr Suceso sucesos[] = {
    {"AGREGADO DE SINTOMA HC. Nº", "BORRADO DE SINTOMA HC. Nº", " Sint:"},
    {"AGREGADO DE TRATAMIENTO HC. Nº", "BORRADO DE TRATAM. HC. Nº", " Trat:"},
    {"AGREGADO DE DIAGNOSTICO HC. Nº", "BORRADO DE DIAGNOSTICO / HC. Nº", " Diag:"},
};

/// The names of a group in the slots of the row being edited; a slot without one is emptied.
void ponerNombres(dao::Recordset &consulta, Grupo grupo, const std::vector<Renglon> &renglones)
{
    for (int ranura = 1; ranura <= ranuras; ++ranura) {
        const auto i = static_cast<std::size_t>(ranura - 1);
        consulta[columna(grupo, ranura)] = i < renglones.size() ? renglones[i].nombre : QString();
    }
}

/// Of the thirty-five items a few are usually filled: the others stand back.
RowLook aspectoDelHallazgo(const basic::Value &valor)
{
    return valor.isBlank() ? RowLook::standingBack() : RowLook::standingOut();
}

void abrirConPermiso(const QString &clave, screens::Window ventana, const QString &numero)
{
    if (MODULE11::VerificaNivel(clave))
        screens::showChild(ventana, numero);
}

} // namespace

panVisitas::panVisitas() : Form(u"panVisitas"_s)
{
    setWindowTitle(u"Pantalla de Visitas y Examenes clínicos"_s);
    DBGrid1.setSource(Data2, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                              {u"Hora"_s, u"Hora"_s, u"HH:MM"_s, 50},
                              {u"Motivo"_s, u"Motivo"_s, {}, 110},
                              {u"Dr."_s, u"Dr"_s, {}, 100}});
    DBGrid2.setSource(Data3, {{u"Examen"_s, u"Titulo"_s, {}, 235}, {u"Resultado"_s, u"Valor"_s, {}, 140}});
    DBGrid2.setRowLook(u"Valor"_s, aspectoDelHallazgo);
    agregarControles();
    disponer();
    conectar();
}

void panVisitas::agregarControles()
{
    Data2.bind(mFecha, u"Fecha"_s);
    Data2.bind(mDato1, u"Motivo"_s);
    Data2.bind(mDato.add(cHora, 10), u"Hora"_s, u"HH:MM"_s);
    Data2.bind(mDato.add(cPulso, 20), u"Pulso"_s);
    Data2.bind(mDato.add(cTemperatura, 20), u"temperatura"_s);
    Data2.bind(mDato.add(cRespiracion, 20), u"Respiracion"_s);
    Data2.bind(Text3.add(cTalla), u"Talla"_s);
    Data2.bind(Text3.add(cPeso), u"Peso"_s);
    Data2.bind(Text1.add(cEstadoGeneral, 255), u"Estado General"_s);
    Data2.bind(Text1.add(cEstadoNutricional, 255), u"Alimentacion"_s);
}

void panVisitas::disponer()
{
    DBGrid1.setMinimumWidth(360);
    DBGrid2.setMinimumHeight(110);
    setContents(this, Column{
                          Expanding(Row{
                              Expanding(Column{barra, Expanding(DBGrid1)}, 3),
                              Expanding(Column{visita(), Expanding(DBGrid2)}, 4),
                              Expanding(listas.disposicion(ListasDeConsulta::Botones::Debajo), 3),
                          }),
                          Row{Command3, Command4, Command5, Command6, Stretch(), Command9, Command7},
                          Row{Command14, Command11, Command12, Stretch(), Command10},
                      });
    resize(1150, 590);
}

Item panVisitas::visita()
{
    mDato(cHora).setFixedWidth(60);
    mDato1.setFixedHeight(mDato1.fontMetrics().height() * 3);
    return Column{
        Row{Fields{{u"&Fecha :"_s, mFecha}}, Fields{{u"&Hora :"_s, mDato(cHora)}}, opciones.option3d2(0),
            opciones.option3d2(1), Stretch()},
        Fields{{u"&Motivo :"_s, mDato1},
               {u"Lugar :"_s, Row{opciones.option3d1(0), opciones.option3d1(1), Stretch()}}},
        Row{Above(u"&Pulso :"_s, mDato(cPulso)), Above(u"Temperatura :"_s, mDato(cTemperatura)),
            Above(u"Respiración :"_s, mDato(cRespiracion)), Above(u"Ta&lla (Cm) :"_s, Text3(cTalla)),
            Above(u"P&eso (Gr) :"_s, Text3(cPeso))},
        Fields{{u"Estado General :"_s, Text1(cEstadoGeneral)},
               {u"Estado N&utricional :"_s, Text1(cEstadoNutricional)}},
    };
}

void panVisitas::conectar()
{
    connect(&Data1, &Data::reposition, this, &panVisitas::armarConsultas);
    connect(&Data2, &Data::reposition, this, &panVisitas::mostrarVisita);
    connect(&opciones, &OpcionesDeConsulta::elegida, this, &panVisitas::guardar);
    connect(&listas, &ListasDeConsulta::agregados, this,
            [this](int grupo, const QStringList &nombres) { agregados(static_cast<Grupo>(grupo), nombres); });
    connect(&listas, &ListasDeConsulta::quitado, this,
            [this](int grupo, const QString &nombre) { quitado(static_cast<Grupo>(grupo), nombre); });
    connect(&Command3, &QPushButton::clicked, this, &panVisitas::nueva);
    connect(&Command5, &QPushButton::clicked, this, [this] {
        guardar();
        MODULE11::RegistraEvento(
            edicion, u"TOMA DE CAMBIOS A LA BASE // HC. Nº%1 / Fecha cons.:%2"_s.arg(tag(), textoDeFecha()));
    });
    connect(&Command6, &QPushButton::clicked, this, [this] { ports::otorgaTurno(tag().toLongLong()); });
    connect(&Command7, &QPushButton::clicked, this, &panVisitas::exportar);
    connect(&Command9, &QPushButton::clicked, this, [] {
        if (MODULE11::VerificaNivel(u"IngresarAConsultas"_s))
            screens::showSingle("panDiario");
    });
    connect(&Command10, &QPushButton::clicked, this, &panVisitas::unload);
    connect(&Command11, &QPushButton::clicked, this,
            [this] { abrirConPermiso(u"IngresarAEstudios"_s, "panEstudios", tag()); });
    connect(&Command12, &QPushButton::clicked, this,
            [this] { abrirConPermiso(u"IngresarALaboratorio"_s, "panAnalisis", tag()); });
    connect(&Command14, &QPushButton::clicked, this, &panVisitas::abrirHistoria);
    Command6.setEnabled(bool(ports::otorgaTurno));
    Command9.setEnabled(screens::has("panDiario"));
    Command11.setEnabled(screens::has("panEstudios"));
    Command12.setEnabled(screens::has("panAnalisis"));
}

/// Back from a dialogue of its own, the window stays on the visit that it showed.
void panVisitas::activate()
{
    if (!Data1.hasRecordset())
        buscarPaciente();
    else if (!Data2.dirty() && visitaBorrada())
        records::reread(Data2);
    if (forms::tag(&Command3) != u"Activar")
        return;
    forms::setTag(&Command3, {});
    nueva();
}

/// By another station, or by the emptying of the daily tables while this window stood behind.
bool panVisitas::visitaBorrada()
{
    return Data2.hasRow() && !basic::ignoring({dao::Error::RecordDeleted},
                                              [this] { Data2.recordset()[u"idConsulta"].value(); });
}

void panVisitas::buscarPaciente()
{
    listas.setPaciente(tag());
    Data1.setRecordSource(u"Select * from Pacientes where Numero = "_s + tag());
    Data1.refresh();
    if (Data1.hasRow())
        setWindowTitle(u"Exámenes clínicos efectuados a "_s +
                       Data1.recordset()[u"Apellido y Nombres"].text());
    if (Data2.hasRow())
        Data2.change([](dao::Recordset &visitas) { visitas.moveLast(); });
    DBGrid1.setFocus();
}

void panVisitas::armarConsultas()
{
    Data2.setRecordSource(u"Select * from Consulta where Paciente = %1 order by fecha, Hora "_s.arg(tag()));
    Data2.refresh();
}

void panVisitas::mostrarVisita()
{
    const bool hay = Data2.hasRow();
    const qint64 lugar = hay ? Data2.recordset().absolutePosition() + 1 : 0;
    const qint64 total = hay ? Data2.recordset().rowCount() : 0;
    barra.setCaption(u"Recorrer consultas efectuadas al paciente (%1 de %2)"_s.arg(
        basic::format(lugar, u"##,###"), basic::format(total, u"##,###")));
    habilitar(hay);
    listas.vaciar();
    if (!hay) {
        mostrarEnBlanco();
        return;
    }
    try {
        opciones.setLugar(Data2.recordset()[u"Lugar de Consulta"].text());
        opciones.setTipo(Data2.recordset()[u"Tipo"].text());
        mostrarListas();
        leerExamen();
    } catch (const dao::Error &) {
        Data3.close(); // deleted at another workstation: nothing of the visit before stays in sight
        throw;
    }
}

void panVisitas::habilitar(bool hay)
{
    for (CommandButton *boton : {&Command4, &Command5, &Command7, &Command14})
        boton->setEnabled(hay);
    mFecha.setEnabled(hay);
    mDato1.setEnabled(hay);
    for (ControlArray<TextBox> *textos : {&mDato, &Text1, &Text3})
        for (auto &[indice, texto] : *textos)
            texto->setEnabled(hay);
    opciones.setEnabled(hay);
    listas.setEnabled(hay);
}

void panVisitas::mostrarEnBlanco()
{
    mFecha.setValue(basic::today());
    mDato1.setPlainText(u"-"_s);
    mDato(cHora).setText(basic::format(basic::time(), u"HH:MM"));
    opciones.setLugar(lugar(true));
    opciones.setTipo(tipo(true));
    sinExamen();
}

void panVisitas::sinExamen()
{
    Data3.setRecordSource(u"Select * from ExFisico where False"_s);
    Data3.refresh();
}

/// The names of the slots. Those that an edit left empty behind the last name are no lines, else a visit once
/// edited would count as full.
void panVisitas::mostrarListas()
{
    dao::Recordset &consulta = Data2.recordset();
    for (const Grupo grupo : grupos) {
        QStringList nombres;
        for (int ranura = 1; ranura <= ranuras; ++ranura)
            if (const basic::Value nombre = consulta[columna(grupo, ranura)]; !nombre.isNull())
                nombres += nombre.text();
        while (!nombres.isEmpty() && nombres.last().isEmpty())
            nombres.removeLast();
        for (const QString &nombre : nombres)
            listas.agregarRenglon(grupo, {nombre});
    }
}

/// A professional sees the own findings only, and two visits of one day show each other's.
void panVisitas::leerExamen()
{
    const QString fecha = textoDeFecha();
    if (fecha.isEmpty()) {
        sinExamen();
        return;
    }
    Data3.setRecordSource(
        u"Select * from ExFisico where Dr = %1 and idPaciente = %2 and Fecha = cdate('%3')"_s.arg(
            dao::quoted(MODULE11::DrActual), tag(), fecha));
    Data3.refresh();
}

QString panVisitas::textoDeFecha()
{
    return Data2.recordset()[u"Fecha"].text();
}

/// Writes the options and the names of the lists, and with them what was typed.
void panVisitas::guardar()
{
    if (!Data2.hasRow())
        return;
    guardarElegido();
    guardarEscrito();
}

/// The ids and doses keep what they were when the visit was recorded.
void panVisitas::guardarElegido()
{
    dao::Recordset &consulta = Data2.recordset();
    consulta.edit([&] {
        if (const QString elegido = opciones.lugar(); !elegido.isEmpty())
            consulta[u"Lugar de Consulta"] = elegido;
        if (const QString elegido = opciones.tipo(); !elegido.isEmpty())
            consulta[u"Tipo"] = elegido;
        for (const Grupo grupo : grupos)
            ponerNombres(consulta, grupo, listas.renglones(grupo));
    });
}

void panVisitas::guardarEscrito()
{
    Data2.updateRecord();
    Data2.updateControls();
}

/// A change in a list is stored and told even while a text that its column does not take waits to be put
/// right.
void panVisitas::agregados(Grupo grupo, const QStringList &nombres)
{
    guardarElegido();
    for (const QString &nombre : nombres)
        registrarCambio(QString::fromUtf8(sucesos[grupo].agregado), grupo, nombre);
    guardarEscrito();
}

void panVisitas::quitado(Grupo grupo, const QString &nombre)
{
    guardarElegido();
    registrarCambio(QString::fromUtf8(sucesos[grupo].borrado), grupo, nombre);
    guardarEscrito();
}

void panVisitas::registrarCambio(const QString &cambio, Grupo grupo, const QString &nombre)
{
    MODULE11::RegistraEvento(edicion, cambio + tag() + u" / Fecha:"_s + textoDeFecha() +
                                          QString::fromUtf8(sucesos[grupo].nombre) + nombre);
}

void panVisitas::nueva()
{
    if (!MODULE11::VerificaNivel(u"AgregarConsultas"_s))
        return;
    Data2.updateRecord(); // a text that is refused is put right before, not once the new visit is recorded
    const std::optional<Registrada> registrada = capturaYRegistra(tag());
    if (!registrada)
        return;
    irA(registrada->idConsulta);
    avisaExamenSinGuardar(*registrada);
}

void panVisitas::irA(qint64 idConsulta)
{
    Data2.refresh(u"idConsulta = "_s + QString::number(idConsulta));
}

void panVisitas::quitar()
{
    dao::Recordset &consulta = Data2.recordset();
    const qint64 lugar = consulta.absolutePosition();
    MODULE11::RegistraEvento(u"BORRADO DE CONSULTA "_s, u"HC. Nº%1 / Fecha:%2"_s.arg(tag(), textoDeFecha()));
    MODULE11::BaseDatos.execute(u"Delete * from ExFisico where idConsulta = "_s +
                                consulta[u"idConsulta"].text());
    Data2.deleteRow();
    if (Data2.hasRow())
        Data2.change([lugar](dao::Recordset &visitas) {
            visitas.setAbsolutePosition(qMin(lugar, visitas.rowCount() - 1)); // beside the one that went
        });
}

/// The form of the history that the practice chose; none chosen is the plain text.
void panVisitas::abrirHistoria()
{
    const QString clave = u"HC por Defecto"_s;
    const QString forma = settings::getSetting(u"Configuracion"_s, clave);
    MODULE11::RegistraEvento(u"EDICION DE HC.TEXTUAL"_s, u"PACIENTE : "_s + tag());
    if (!forma.isEmpty() && forma != u"STANDARD") {
        screens::showChild(screens::oneOf("panEHC", "panEditHC"), tag());
        return;
    }
    settings::saveSetting(u"Configuracion"_s, clave, u"STANDARD"_s);
    screens::showChild("panEditHC", tag());
}

/// With what was typed in the visit in sight.
void panVisitas::exportar()
{
    if (!MODULE11::VerificaNivel(u"IngresarAInformes"_s))
        return;
    Data2.updateRecord();
    informes::exportaHtml(Data2.recordSource(), u"Consultas del paciente"_s, anchoDelListado);
}

bool panVisitas::queryUnload()
{
    Data2.updateRecord();
    return true;
}

#include "moc_panVisitas.cpp"
