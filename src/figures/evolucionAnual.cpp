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

QString delSexo(const QString &sexo)
{
    return sexo.isEmpty() ? QString() : u" and Sexo = "_s + dao::quoted(sexo);
}

} // namespace

std::array<qint64, 12> vecesPorMes(Nombrado que, const QString &nombre, int anio, const QString &sexo)
{
    std::array<qint64, 12> veces{};
    dao::Recordset visitas = MODULE11::BaseDatos.openRecordset(
        u"Select month(Fecha), %1 from Consulta where year(Fecha) = %2%3"_s.arg(columnas(que))
            .arg(anio)
            .arg(delSexo(sexo)));
    MODULE11::BaseDatos.readTogether([&] {
        for (qint64 fila = 0; visitas.hasRow(fila); ++fila)
            for (int lugar = 1; lugar <= lugaresDeLaVisita; ++lugar)
                if (const basic::Value valor = visitas.valueAt(fila, lugar);
                    !valor.isNull() && valor.text() == nombre)
                    ++veces[static_cast<std::size_t>(visitas.valueAt(fila, 0).integer() - 1)];
    });
    return veces;
}

QString visitasDelMes(Nombrado que, const QString &nombre, int anio, int mes, const QString &sexo)
{
    QStringList alguna;
    for (int n = 1; n <= lugaresDeLaVisita; ++n)
        alguna +=
            u"[%1 %2] = %3"_s.arg(QLatin1StringView(origen(que).columna)).arg(n).arg(dao::quoted(nombre));
    return u"Select Fecha, [Nombre del Paciente], Motivo, Dr from Consulta where month(Fecha) = %1 and year(Fecha) = %2%3 and (%4) order by Fecha"_s
        .arg(mes)
        .arg(anio)
        .arg(delSexo(sexo), alguna.join(u" or "_s));
}

} // namespace figures
