#pragma once

#include "platform/dao/schema.h"

#include <QStringList>

#include <optional>

/// The criteria of the query builder, as the lines that a person sees.
namespace criterios
{

inline const QString y = QStringLiteral("AND"), o = QStringLiteral("OR"), peroNo = QStringLiteral("NOT");

bool esConector(const QString &linea);

/// "[Fecha] >= cdate('01/03/2024')": the value in the form of the column's type, so that what was typed is
/// never read as anything else. Nothing for a text that is no number or no date where the column asks for
/// one.
std::optional<QString> criterio(const dao::FieldDef &campo, const QString &operador, const QString &valor);

/// The lines as a condition. "NOT" after a criterion means "and not".
QString condicion(const QStringList &lineas);

} // namespace criterios
