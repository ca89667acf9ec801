#include "practice/daybook/libroDiario.h"

#include "core/services/services.h"
#include "platform/dao/sqltext.h"
#include "platform/reports/selection.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace diario
{

namespace
{

/// The practice has always known the two kinds by these pieces, though no statement comes of them: choosing
/// one is told as an error, and the list stays.
QString clausula(Clase clase)
{
    switch (clase) {
    case Clase::PrimeraVez:
        return u" Tipo = '1ra.' and "_s;
    case Clase::Ulterior:
        return u"Tipo = 'Ulterior' "_s;
    default:
        return u" true "_s;
    }
}

QString clausulaDelPeriodo(const Pedido &pedido)
{
    switch (pedido.periodo) {
    case Periodo::Mes:
        return u"and month(fecha) = %1 and year(fecha) = %2 "_s.arg(pedido.mes).arg(pedido.anio);
    case Periodo::Anio:
        return u"and year(fecha) = %1 "_s.arg(pedido.anio);
    default:
        return u"and fecha = %1 "_s.arg(dao::cdate(pedido.dia));
    }
}

QString clausula(const QString &campo, const QString &elegido, const QString &todo)
{
    const QString valor = dao::quoted(elegido);
    return u"( %1 = %2 or %2 = '%3')"_s.arg(campo, valor, todo);
}

QString condicion(const Pedido &pedido)
{
    return clausula(pedido.clase) + clausulaDelPeriodo(pedido) + u"and "_s +
           clausula(u"Mutual"_s, pedido.obraSocial, todas) + u" and "_s +
           clausula(u"Dr"_s, pedido.profesional, todos);
}

} // namespace

std::pair<basic::Date, basic::Date> Pedido::fechas() const
{
    if (periodo == Periodo::Dia)
        return {dia, dia};
    const QDate primero(anio, periodo == Periodo::Mes ? mes : 1, 1);
    const QDate ultimo = periodo == Periodo::Mes ? primero.addMonths(1).addDays(-1) : QDate(anio, 12, 31);
    return {basic::Date(primero), basic::Date(ultimo)};
}

QString Pedido::titulo() const
{
    switch (periodo) {
    case Periodo::Mes:
        return MODULE11::NombreMesListado(mes) + u" de "_s + QString::number(anio);
    case Periodo::Anio:
        return u" Año "_s + QString::number(anio);
    default:
        return MODULE11::FechaEnLetras(dia);
    }
}

QString Pedido::consulta() const
{
    return u"Select * from consulta where"_s + condicion(*this) + u" order by hora"_s;
}

QString Pedido::suma() const
{
    return u"Select sum(Monto) as Total from consulta where"_s + condicion(*this);
}

QString Pedido::seleccion() const
{
    const auto [desde, hasta] = fechas();
    QStringList condiciones{reports::period(u"Consulta.Fecha"_s, desde, hasta)};
    if (obraSocial != todas)
        condiciones += u"{Consulta.Mutual} = "_s + reports::literal(obraSocial);
    if (profesional != todos)
        condiciones += u"{Consulta.Dr} = "_s + reports::literal(profesional);
    return condiciones.join(u" and "_s);
}

} // namespace diario
