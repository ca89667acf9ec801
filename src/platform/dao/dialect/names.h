#pragma once

#include <QStringView>

namespace dao
{

/// Names of tables, columns and indexes are one name whatever their case.
inline bool sameName(QStringView a, QStringView b)
{
    // Most names are written as they were declared.
    return a.size() == b.size() && (a == b || a.compare(b, Qt::CaseInsensitive) == 0);
}

} // namespace dao
