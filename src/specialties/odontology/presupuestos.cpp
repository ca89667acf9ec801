#include "specialties/odontology/presupuestos.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

#include <cmath>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace presupuestos
{

namespace
{

constexpr qint64 deNinguno = 999999;
constexpr double mayorImporte = 9e14;

std::optional<Practica> practicaCon(QStringView palabra)
{
    dao::Recordset filas =
        BaseDatos.openRecordset(u"Select * from practicos where detalle LIKE %1 order by detalle"_s.arg(
            dao::quoted(dao::typedPattern(palabra.toString(), dao::Match::Anywhere))));
    if (filas.eof())
        return std::nullopt;
    return Practica{filas[u"idpractico"].integer(), filas[u"detalle"].text(),
                    filas[u"precio"].value().currency()};
}

} // namespace

QString renglones(std::optional<qint64> presupuesto)
{
    return u"select * from ConsultaPresupuesto where codpresupuesto=%1"_s.arg(
        presupuesto.value_or(deNinguno));
}

basic::Currency total(qint64 presupuesto)
{
    const dao::Recordset suma = BaseDatos.openRecordset(
        u"select Sum(subtotal) from Consultapresupuesto where codpresupuesto=%1"_s.arg(presupuesto));
    return suma.eof() ? basic::Currency() : suma.value(0).currency();
}

std::optional<basic::Currency> subtotal(double cantidad, basic::Currency precio)
{
    const double importe = cantidad * precio.toDouble();
    if (!std::isfinite(importe) || std::fabs(importe) > mayorImporte)
        return std::nullopt;
    return basic::Currency::fromDouble(importe);
}

bool existe(qint64 presupuesto)
{
    return !BaseDatos.openRecordset(u"Select * from presupuestos where idpresupuesto=%1"_s.arg(presupuesto))
                .eof();
}

void agregar(qint64 presupuesto, qint64 practica, double cantidad)
{
    dao::Recordset elegida =
        BaseDatos.openRecordset(u"Select * from practicos where idpractico=%1"_s.arg(practica));
    const basic::Currency precio = elegida[u"precio"].value().currency();
    dao::Recordset filas = BaseDatos.openRecordset(u"Select * from relpractico"_s);
    filas.addNew();
    filas[u"codpractico"] = practica;
    filas[u"codpresupuesto"] = presupuesto;
    filas[u"detalle"] = elegida[u"detalle"].value();
    filas[u"cantidad"] = cantidad;
    filas[u"precio"] = precio;
    filas[u"subtotal"] = subtotal(cantidad, precio).value_or(precio);
    filas.update();
}

void borrar(qint64 presupuesto)
{
    dao::Batch juntos(BaseDatos);
    BaseDatos.execute(u"delete * from relpractico where codpresupuesto=%1"_s.arg(presupuesto));
    BaseDatos.execute(u"delete * from presupuestos where idpresupuesto=%1"_s.arg(presupuesto));
    juntos.commit();
}

qint64 nuevaPractica(const QString &detalle, basic::Currency precio)
{
    dao::Recordset filas = BaseDatos.openRecordset(u"Select * from practicos"_s);
    filas.addNew();
    filas[u"detalle"] = detalle;
    filas[u"precio"] = precio;
    filas.update();
    filas.setBookmark(filas.lastModified());
    return filas[u"idpractico"].integer();
}

std::vector<Propuesta> propuestas(const odonto::Esquema &esquema, QStringList &sinPractica)
{
    std::vector<Propuesta> todas;
    for (const odonto::ClaseDeMarca &clase : odonto::clasesDeMarca()) {
        std::vector<int> marcadas;
        for (int pieza = 1; pieza <= odonto::piezas; ++pieza)
            if (esquema.marca(pieza).tipo == clase.tipo)
                marcadas.push_back(pieza);
        if (marcadas.empty())
            continue;
        if (auto practica = practicaCon(clase.practica))
            todas.push_back({std::move(*practica), std::move(marcadas)});
        else
            sinPractica += clase.nombre.toString();
    }
    return todas;
}

} // namespace presupuestos
