#pragma once

#include "platform/dao/dialect/ast.h"

#include <QStringView>

#include <span>

namespace dao
{

/// How the type of a call follows from its operands.
enum class Yields : quint8 { Integer, Double, Date, Text, Condition, SameAsFirst, SameAsLast, Sum, Average };
/// What a function does with an operand before it looks at it.
enum class Takes : quint8 { Any, Text, Number, Date, Condition };

/// A function of the dialect.
struct FunctionDef {
    QStringView name;
    int fewest;
    int most;
    Yields yields;
    Takes takes; ///< of every operand, unless the emitter knows better
    bool aggregate = false;
};

std::span<const FunctionDef> functions();
int functionNamed(QStringView name); ///< -1 when there is none

} // namespace dao
