#include "clinical/laboratory/tendencia.h"

#include "clinical/laboratory/analisis.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace laboratorio
{

namespace
{

QString ordenes(qint64 paciente)
{
    return u"Select * from Analisis where paciente = %1 and fecha is not null order by fecha, hora"_s.arg(
        paciente);
}

std::optional<double> opcional(const basic::Value &valor)
{
    return valor.isBlank() ? std::nullopt : std::optional(valor.number());
}

basic::Value paraGuardar(const std::optional<double> &valor)
{
    return valor ? basic::Value(*valor) : basic::Value(basic::Null{});
}

} // namespace

std::optional<double> valorDelResultado(QStringView resultado)
{
    static const QRegularExpression cifra(uR"(^\s*[<>≤≥]?\s*(-?\d[\d.,]*)(?![\d.,]|\s*[-/:]\s*\d))"_s);
    const auto hallada = cifra.match(resultado.toString());
    if (!hallada.hasMatch())
        return {};
    QString texto = hallada.captured(1);
    while (texto.endsWith(u'.') || texto.endsWith(u','))
        texto.chop(1);
    return basic::toNumber(texto);
}

std::vector<Punto> tendencia(qint64 paciente, const QString &estudio)
{
    std::vector<Punto> puntos;
    dao::Recordset orden = BaseDatos.openRecordset(ordenes(paciente));
    for (const int lugar = orden.ordinal(estudio); lugar >= 0 && !orden.eof(); orden.moveNext()) {
        const QString texto = orden[lugar].text().trimmed();
        if (const auto valor = valorDelResultado(texto)) {
            const basic::Value hora = orden[u"Hora"];
            puntos.push_back(
                {QDateTime(orden[u"Fecha"].date().date(), hora.isBlank() ? QTime(0, 0) : hora.date().time()),
                 *valor, texto});
        }
    }
    return puntos;
}

QStringList estudiosConValores(qint64 paciente)
{
    QStringList faltan = estudios(), hallados;
    for (dao::Recordset orden = BaseDatos.openRecordset(ordenes(paciente)); !orden.eof(); orden.moveNext())
        faltan.removeIf([&](const QString &estudio) {
            const bool tiene = valorDelResultado(orden[estudio].text()).has_value();
            if (tiene)
                hallados += estudio;
            return tiene;
        });
    QStringList enOrden = estudios();
    enOrden.removeIf([&](const QString &estudio) { return !hallados.contains(estudio); });
    return enOrden;
}

Rango rango(const QString &estudio)
{
    dao::Recordset fila =
        BaseDatos.openRecordset(u"Select * from RangosLaboratorio where Estudio = "_s + dao::quoted(estudio));
    if (fila.eof())
        return {};
    return {opcional(fila[u"Minimo"]), opcional(fila[u"Maximo"])};
}

void guardarRango(const QString &estudio, const Rango &rango)
{
    dao::Batch lote(BaseDatos);
    BaseDatos.execute(u"Delete * from RangosLaboratorio where Estudio = "_s + dao::quoted(estudio));
    if (!rango.vacio()) {
        dao::Recordset filas = BaseDatos.openRecordset(u"RangosLaboratorio"_s);
        filas.addNew();
        filas[u"Estudio"] = estudio;
        filas[u"Minimo"] = paraGuardar(rango.minimo);
        filas[u"Maximo"] = paraGuardar(rango.maximo);
        filas.update();
    }
    lote.commit();
}

} // namespace laboratorio
