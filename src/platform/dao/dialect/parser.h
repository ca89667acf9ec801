#pragma once

#include "platform/dao/dialect/ast.h"

namespace dao
{

/// Reads one statement of the dialect. Throws Error::SyntaxError with the position of what is not understood.
Statement parseStatement(const QString &text);
/// Reads a SELECT alone, as a saved query holds one.
SelectPtr parseSelect(const QString &text);
/// Reads a condition, as the finding of rows takes one.
ExprPtr parseCriterion(const QString &text);

} // namespace dao
