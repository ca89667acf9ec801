#include "specialties/odontology/paginaDePresupuestos.h"

#include "core/records/comando.h"
#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "specialties/odontology/panNuePresu.h"
#include "specialties/odontology/presupuestos.h"

#include <QLayout>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;
using records::comando;

namespace presupuestos
{

namespace
{

const QString porFecha = u" order by fecha desc"_s;

QString enNumeros(const std::vector<int> &piezas)
{
    QStringList numeros;
    for (const int pieza : piezas)
        numeros += QString::number(odonto::numeroFdi(pieza));
    return numeros.join(u", "_s);
}

} // namespace

Pagina::Pagina(Form &ventana, std::function<odonto::Esquema()> esquema)
    : ventana_(ventana), esquema_(std::move(esquema)), renglones_(u"currency"_s)
{
    DBGrid4.setSource(Data4, {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 90},
                              {u"Descripción"_s, u"Descripcion"_s, {}, 260},
                              {u"Paciente"_s, u"Apellido y Nombres"_s, {}, 200}});
    setContents(this, Row{filtros(), Expanding(Column{Expanding(cabezas()), Expanding(lineas())})});
    layout()->setContentsMargins({});
    connect(&Data4, &Data::reposition, this, &Pagina::mostrarRenglones);
    connect(&MonthView1, &QCalendarWidget::clicked, this, [this] {
        listar(u" where fecha =datevalue('%1') "_s.arg(basic::format(MonthView1.value(), u"d/mm/yyyy")));
    });
}

Item Pagina::filtros()
{
    return Group(u"Ver"_s, Column{comando(ventana_, u"Command23"_s, u"&Paciente actual"_s, u"paciente"_s,
                                          [this] { listarDelPaciente(); }),
                                  comando(ventana_, u"Command22"_s, u"&Todo"_s, u"informes"_s,
                                          [this] { listar(porFecha); }),
                                  Space(6), MonthView1, Stretch()});
}

Item Pagina::cabezas()
{
    return Group(
        u"Presupuestos"_s,
        Column{
            Expanding(DBGrid4),
            Row{comando(ventana_, u"Command20"_s, u"Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
                comando(ventana_, u"Command21"_s, u"Borrar"_s, u"borrar"_s, [this] { borrar(); }), Stretch(),
                comando(ventana_, u"Command26"_s, u"Imprimir..."_s, u"imprimir"_s, [this] { imprimir(); })}});
}

Item Pagina::lineas()
{
    return Group(u"Prácticas del presupuesto"_s,
                 Column{Expanding(renglones_.grilla()),
                        Row{comando(ventana_, u"Command24"_s, u"A&gregar..."_s, u"agregar"_s,
                                    [this] { renglones_.agregar(u"tooth"_s); }),
                            comando(ventana_, u"Command25"_s, u"&Quitar"_s, u"quitar"_s,
                                    [this] { renglones_.quitar(); }),
                            comando(ventana_, u"Command27"_s, u"Proponer &según el odontograma..."_s,
                                    u"odontologia"_s, [this] { proponer(); }),
                            Stretch(), renglones_.renglonDelTotal()}});
}

void Pagina::mostrar(std::optional<qint64> paciente)
{
    paciente_ = paciente;
    if (paciente_)
        listarDelPaciente();
    else
        listar(porFecha);
}

void Pagina::listar(const QString &condicion, std::optional<qint64> elegido)
{
    Data4.setRecordSource(u"select * from ConsPresupuesto"_s + condicion);
    Data4.refresh(elegido ? u"idpresupuesto = %1"_s.arg(*elegido) : QString());
}

void Pagina::listarDelPaciente(std::optional<qint64> elegido)
{
    listar(u" where numero = %1"_s.arg(paciente_.value_or(0)) + porFecha, elegido);
}

void Pagina::mostrarRenglones()
{
    renglones_.mostrar(Data4.hasRow() ? std::optional(Data4.recordset()[u"idpresupuesto"].integer())
                                      : std::nullopt);
}

std::optional<qint64> Pagina::elegido()
{
    if (Data4.hasRow())
        return Data4.recordset()[u"idpresupuesto"].integer();
    MODULE11::MuestraError(u"Seleccione un Presupuesto"_s);
    return std::nullopt;
}

void Pagina::nuevo()
{
    panNuePresu ventana(paciente_.value_or(0));
    ventana.showModal();
    if (ventana.tag() == u"SI")
        listarDelPaciente(ventana.presupuesto());
}

void Pagina::borrar()
{
    const auto presupuesto = elegido();
    if (!presupuesto || !MODULE11::PreguntaSiBorra(u"Esta seguro que quiere borrar el presupuesto "_s +
                                                   Data4.recordset()[u"Descripcion"].text() + u"?"_s))
        return;
    presupuestos::borrar(*presupuesto);
    Data4.refresh();
}

void Pagina::imprimir()
{
    const auto presupuesto = elegido();
    if (!presupuesto)
        return;
    if (renglones_.vacio()) {
        MODULE11::Aviso(u"El presupuesto no tiene prácticas."_s);
        return;
    }
    informes::muestra(u"presupuesto.rpt"_s, u"{ConsultaPresupuesto.idPresupuesto} = %1"_s.arg(*presupuesto));
}

/// What the marks would take, once the person has agreed to it.
void Pagina::proponer()
{
    const auto presupuesto = elegido();
    if (!presupuesto)
        return;
    if (Data4.recordset()[u"Numero"].integer() != paciente_.value_or(0)) {
        MODULE11::MuestraError(u"El presupuesto elegido es de otro paciente."_s);
        return;
    }
    QStringList sinPractica;
    const std::vector<Propuesta> todas = propuestas(esquema_(), sinPractica);
    QStringList lineas;
    for (const Propuesta &propuesta : todas)
        lineas += u"%1 x %2 (%3)"_s.arg(propuesta.piezas.size())
                      .arg(propuesta.practica.detalle, enNumeros(propuesta.piezas));
    const QString faltan = sinPractica.isEmpty() ? QString()
                                                 : u"\n\nLa lista de prácticas no tiene ninguna para: "_s +
                                                       sinPractica.join(u", "_s);
    if (lineas.isEmpty()) {
        MODULE11::Aviso(u"El esquema elegido no tiene marcas que presupuestar."_s + faltan);
        return;
    }
    if (!MODULE11::Pregunta(u"¿Agrega al presupuesto estas prácticas?\n\n"_s + lineas.join(u'\n') + faltan))
        return;
    dao::Batch juntas(BaseDatos);
    for (const Propuesta &propuesta : todas)
        agregar(*presupuesto, propuesta.practica.id, static_cast<double>(propuesta.piezas.size()));
    juntas.commit();
    renglones_.releer();
}

} // namespace presupuestos

#include "moc_paginaDePresupuestos.cpp"
