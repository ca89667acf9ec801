#pragma once

#include <QStringList>

/// The criteria of the query builder, as the lines that a person sees.
namespace criterios
{

inline const QString y = QStringLiteral("AND"), o = QStringLiteral("OR"), peroNo = QStringLiteral("NOT");

bool esConector(const QString &linea);

/// The lines as a condition. "NOT" after a criterion means "and not".
QString condicion(const QStringList &lineas);

} // namespace criterios
