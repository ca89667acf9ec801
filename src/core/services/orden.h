#pragma once

#include <QString>

namespace services
{

/// The query with its rows in the order of a column, by its place from 0; rows that are alike in it keep the
/// query's own order. One of the first rows only (TOP) stays as it is: in another order it would have others.
QString ordenadaPor(const QString &sql, int columna, bool descendente);

} // namespace services
