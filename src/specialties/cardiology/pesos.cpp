#include "specialties/cardiology/pesos.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

namespace pesos
{

namespace
{

QString enElPeriodo(qint64 paciente, basic::Date desde, basic::Date hasta)
{
    return u" from Medidas where Paciente = %1 and %2"_s.arg(QString::number(paciente),
                                                             dao::period(u"fecha"_s, desde, hasta));
}

} // namespace

std::vector<Punto> entre(qint64 paciente, basic::Date desde, basic::Date hasta)
{
    std::vector<Punto> puntos;
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select fecha, Peso"_s + enElPeriodo(paciente, desde, hasta) + u" and Peso > 0 order by fecha"_s);
    for (; !filas.eof(); filas.moveNext()) {
        const basic::Date dia = filas[u"fecha"].date().dateOnly();
        if (puntos.empty() || puntos.back().dia != dia)
            puntos.push_back({dia, filas[u"Peso"].number()});
    }
    return puntos;
}

bool hayMedidas(qint64 paciente, basic::Date desde, basic::Date hasta)
{
    return !MODULE11::BaseDatos.openRecordset(u"Select top 1 fecha"_s + enElPeriodo(paciente, desde, hasta))
                .eof();
}

basic::Date primerDia(qint64 paciente)
{
    const dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select min(fecha) from Medidas where Paciente = %1"_s.arg(paciente));
    return filas.eof() || filas.value(0).isNull() ? basic::today() : filas.value(0).date().dateOnly();
}

void agregar(qint64 paciente, basic::Date dia, double kilos)
{
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(u"Medidas"_s);
    medidas.addNew();
    medidas[u"fecha"] = dia;
    medidas[u"Paciente"] = paciente;
    medidas[u"Peso"] = kilos * 1000;
    medidas[u"Talla"] = 0;
    medidas[u"Pc"] = 0;
    medidas.update();
}

} // namespace pesos
