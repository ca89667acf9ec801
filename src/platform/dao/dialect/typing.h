#pragma once

#include "platform/dao/dialect/ast.h"

namespace dao
{

/// The dialect's rules on which types go together. Each gives a bound expression its type, putting literals
/// into the form that the other operand needs; throws Error::TypeMismatch where types cannot meet.

void typeComparison(ExprPtr &comparison); ///< `= NULL` becomes IS NULL
void typeArithmetic(Expr &arithmetic);
void typeBetween(Expr &between);
void typeIn(Expr &in);
void typeNegation(Expr &negation);
void requireCondition(const Expr &expr);
/// A literal that a Currency meets becomes one, when it has no more than four decimals.
void meetCurrency(Expr &literal);
[[noreturn]] void throwMismatch(const Expr &expr);

} // namespace dao
