#include "clinical/summary/antecedentes.h"

#include "core/services/hallazgosPerinatales.h"
#include "core/session/session.h"
#include "platform/dao/database.h"

using namespace Qt::StringLiterals;

namespace clinical
{

namespace
{

/// One column of the patient's rows.
QStringList columna(const QString &sql, qint64 paciente, QStringView campo)
{
    QStringList valores;
    for (dao::Recordset fila =
             MODULE11::BaseDatos.openRecordset(sql.arg(paciente), dao::Recordset::Kind::Snapshot);
         !fila.eof(); fila.moveNext())
        valores += fila[campo].text();
    return valores;
}

} // namespace

QStringList antecedentesFamiliares(qint64 paciente)
{
    QStringList renglones =
        columna(u"Select * from [Patologias Familiares] where Paciente = %1"_s, paciente, u"Patologia");
    for (dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
             u"Select * from Antecedentes where Paciente = %1"_s.arg(paciente),
             dao::Recordset::Kind::Snapshot);
         !fila.eof(); fila.moveNext())
        renglones += fila[u"Pariente"].text() + u" ---> "_s + fila[u"Afeccion"].text();
    return renglones;
}

QStringList renglonesPerinatales(qint64 paciente)
{
    const QStringList patologias =
        columna(u"Select * from [Patologias Perinatales] where Paciente = %1"_s, paciente, u"Patologia") +
        columna(u"Select * from [diagnostico RN] where Paciente = %1"_s, paciente, u"Patologia");
    const QStringList dichos = services::hallazgosPerinatales(paciente);
    if (patologias.isEmpty() && dichos.isEmpty())
        return {};
    return patologias + QStringList(u"-"_s.repeated(40)) + dichos;
}

} // namespace clinical
