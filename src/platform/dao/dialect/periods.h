#pragma once

#include "platform/dao/dialect/ast.h"

namespace dao
{

/// A bound condition that asks for the year of a date column, or for its year and month ("month(fecha) = 3
/// and year(fecha) = 2024"), says the same as a range of dates too: with it an index over the column leads to
/// the rows. What the condition means stays.
void addPeriods(ExprPtr &condition);

} // namespace dao
