#include "practice/cashbook/caja.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/reports/selection.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace caja
{

namespace
{

/// The day after, which no hour of `dia` reaches.
basic::Date siguiente(basic::Date dia)
{
    return basic::Date(dia.date().addDays(1));
}

} // namespace

basic::Currency importe(const QString &escrito)
{
    return basic::Currency::fromDouble(basic::toNumber(escrito).value_or(0));
}

QString enTexto(basic::Currency importe)
{
    return basic::format(importe, u"0.00##");
}

Movimiento leer(dao::Recordset &fila)
{
    const basic::Currency entrada = fila[u"Entrada"].value().currency();
    const bool entra = entrada != basic::Currency();
    return {fila[u"Fecha"].date(), fila[u"Cuenta"].text(), fila[u"Detalle"].text(), entra,
            entra ? entrada : fila[u"Salida"].value().currency()};
}

void escribir(dao::Recordset &fila, const Movimiento &movimiento)
{
    const basic::Currency nada;
    fila[u"Fecha"] = movimiento.fecha;
    fila[u"Hora"] = u"00:00"_s;
    fila[u"Cuenta"] = movimiento.cuenta.trimmed();
    fila[u"Detalle"] = movimiento.detalle.trimmed();
    fila[u"Entrada"] = movimiento.entra ? movimiento.importe : nada;
    fila[u"Salida"] = movimiento.entra ? nada : movimiento.importe;
    fila[u"Tipo"] = u"-"_s;
}

QString Consulta::sql() const
{
    return u"Select * from Caja where %1 order by %2"_s.arg(condicion, orden);
}

std::optional<Sumas> Consulta::sumas() const
{
    dao::Recordset total = MODULE11::BaseDatos.openRecordset(
        u"Select Count(*), Sum(Entrada), Sum(Salida) from Caja where "_s + condicion);
    if (total.value(0).integer() == 0)
        return std::nullopt;
    return Sumas{total.value(1).currency(), total.value(2).currency()};
}

Consulta movimientos(basic::Date desde, basic::Date hasta, const QString &cuenta, const QString &orden)
{
    const QString dias = u"fecha >= %1 and fecha < %2"_s.arg(dao::cdate(desde), dao::cdate(siguiente(hasta)));
    const QString deLaCuenta = cuenta == todas ? QString() : u" and trim(cuenta) = "_s + dao::quoted(cuenta);
    return {dias + deLaCuenta, orden};
}

void agregarCuentas(QComboBox &lista)
{
    dao::Recordset cuentas = MODULE11::BaseDatos.openRecordset(
        u"Select Descripcion from Cuentas where Descripcion is not null order by Descripcion"_s);
    for (; !cuentas.eof(); cuentas.moveNext())
        lista.addItem(cuentas[0].text());
}

QString seleccion(basic::Date desde, basic::Date hasta, const QString &cuenta)
{
    const QString elegida = reports::literal(cuenta);
    return u"{caja.fecha} >= %1 and {caja.fecha} < %2 and (%3 = '<Todas>' or {caja.cuenta} = %3)"_s.arg(
        reports::literal(desde), reports::literal(siguiente(hasta)), elegida);
}

} // namespace caja
