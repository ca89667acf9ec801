#pragma once

#include <QStringView>

namespace dao
{

/// What stands in the engine's texts for a function of the dialect: %1 is its operand, and a plain name is
/// called with all of them. The names with "d_" are the dialect's own, made known by registerDialect().
QStringView functionText(int function);

} // namespace dao
