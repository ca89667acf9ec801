#pragma once

#include <QString>

namespace services
{

/// Where a query's own clause begins, outside of texts, names in brackets and subqueries; its end without
/// one. The clause is an expression: "where", or one of the names below.
qsizetype lugarDeLaClausula(const QString &sql, const QString &clausula);
inline const QString clausulaDelOrden = QStringLiteral("order\\s+by");

/// The query with its rows in the order of a column, by its place from 0; rows that are alike in it keep the
/// query's own order. One of the first rows only (TOP) stays as it is: in another order it would have others.
QString ordenadaPor(const QString &sql, int columna, bool descendente);

} // namespace services
