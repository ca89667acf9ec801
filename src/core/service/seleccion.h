#pragma once

#include "platform/dao/schema.h"

#include <QStringList>

#include <optional>

/// The selections of rows that the service screens put together.
namespace seleccion
{

/// How a column is compared with a value.
QStringList comparaciones();

/// "[Nombre] LIKE '*ana*'": the value in the form of the column's type; nothing when it is none of it.
std::optional<QString> criterio(const dao::FieldDef &campo, const QString &comparacion, const QString &valor);

/// "Select * from Caja where ... order by [Fecha]"; without the parts that are empty.
QString consulta(const QString &tabla, const QString &criterio, const QString &orden);
/// "Select [Fecha], [Hora] FROM Turnos".
QString deColumnas(const QString &tabla, const QStringList &columnas);
/// The query in the order of the columns, in place of its own.
QString conOrden(const QString &sql, const QStringList &columnas);
/// The query with a criterion more, before its groups and its order.
QString conCriterio(const QString &sql, const QString &criterio);

} // namespace seleccion
