#include "figures/evolucionAnual.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace figures
{

namespace
{

QString columnas(Nombrado que)
{
    QStringList todas;
    for (int n = 1; n <= lugaresDeLaVisita; ++n)
        todas += u"[%1 %2]"_s.arg(QLatin1StringView(origen(que).columna)).arg(n);
    return todas.join(u", "_s);
}

/// The visits of a year that name it, in letters of any case.
QString visitasQueNombran(Nombrado que, const QString &nombre, int anio, const QString &sexo)
{
    QStringList alguna;
    for (int n = 1; n <= lugaresDeLaVisita; ++n)
        alguna +=
            u"[%1 %2] = %3"_s.arg(QLatin1StringView(origen(que).columna)).arg(n).arg(dao::quoted(nombre));
    return u"year(Fecha) = %1%2 and (%3)"_s.arg(
        QString::number(anio), sexo.isEmpty() ? QString() : u" and Sexo = "_s + dao::quoted(sexo),
        alguna.join(u" or "_s));
}

} // namespace

std::array<qint64, 12> vecesPorMes(Nombrado que, const QString &nombre, int anio, const QString &sexo)
{
    std::array<qint64, 12> veces{};
    dao::Recordset visitas =
        MODULE11::BaseDatos.openRecordset(u"Select month(Fecha), %1 from Consulta where %2"_s.arg(
                                              columnas(que), visitasQueNombran(que, nombre, anio, sexo)),
                                          dao::Recordset::Kind::Snapshot);
    for (qint64 fila = 0; visitas.hasRow(fila); ++fila)
        for (int lugar = 1; lugar <= lugaresDeLaVisita; ++lugar)
            if (const basic::Value valor = visitas.valueAt(fila, lugar);
                !valor.isNull() && valor.text() == nombre)
                ++veces[static_cast<std::size_t>(visitas.valueAt(fila, 0).integer() - 1)];
    return veces;
}

QString visitasDelMes(Nombrado que, const QString &nombre, int anio, int mes, const QString &sexo)
{
    return u"Select Fecha, [Nombre del Paciente], Motivo, Dr from Consulta where month(Fecha) = %1 and %2 order by Fecha"_s
        .arg(QString::number(mes), visitasQueNombran(que, nombre, anio, sexo));
}

} // namespace figures
