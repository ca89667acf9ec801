#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace dao
{

/// A text as a literal of the dialect, quotes included: what a person typed is a value and never a piece of
/// a statement.
QString quoted(const QString &text);

/// The day in a statement: cdate('15/03/2024').
QString cdate(basic::Date day);
/// The rows whose `column` lies between the two days, both included.
QString period(const QString &column, basic::Date from, basic::Date to);

} // namespace dao
