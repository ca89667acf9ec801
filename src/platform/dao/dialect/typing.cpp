#include "platform/dao/dialect/typing.h"

#include "platform/basic/runtime.h"
#include "platform/dao/error.h"

#include <initializer_list>

namespace dao
{

namespace
{

bool isNumber(ExprType type)
{
    return type == ExprType::Integer || type == ExprType::Double || type == ExprType::Currency ||
           type == ExprType::Bit || type == ExprType::Condition;
}

/// A text literal read as a number or a date, as the other operand asks.
void readLiteral(Expr &literal, ExprType as)
{
    if (as == ExprType::Date) {
        const std::optional<basic::Date> date = basic::toDate(*literal.literal.as<QString>());
        if (!date)
            throwMismatch(literal);
        literal.literal = *date;
        literal.kind = ExprKind::Date;
        literal.type = ExprType::Date;
        return;
    }
    const std::optional<double> number = basic::toNumber(*literal.literal.as<QString>());
    if (!number)
        throwMismatch(literal);
    const auto whole = basic::nearestWhole(*number);
    const bool isWhole = static_cast<double>(whole) == *number;
    literal.literal = isWhole ? basic::Value(whole) : basic::Value(*number);
    literal.kind = ExprKind::Number;
    literal.type = isWhole ? ExprType::Integer : ExprType::Double;
}

/// Makes two operands comparable.
void unify(Expr &a, Expr &b)
{
    for (auto [one, other] : {std::pair(&a, &b), std::pair(&b, &a)}) {
        if (one->type != ExprType::Text || other->type == ExprType::Text || other->type == ExprType::Null)
            continue;
        if (one->kind != ExprKind::Text)
            throwMismatch(*one);
        readLiteral(*one, other->type);
    }
    if (a.type == ExprType::Currency)
        meetCurrency(b);
    if (b.type == ExprType::Currency)
        meetCurrency(a);
}

ExprType sumType(ExprType a, ExprType b, Operator op)
{
    if (a == ExprType::Null)
        return b;
    if (b == ExprType::Null)
        return a;
    if (a == ExprType::Text)
        return ExprType::Text;
    if (a == ExprType::Date || b == ExprType::Date)
        return a == b && op == Operator::Subtract ? ExprType::Double : ExprType::Date;
    if (a == ExprType::Double || b == ExprType::Double)
        return ExprType::Double;
    return a == ExprType::Currency || b == ExprType::Currency ? ExprType::Currency : ExprType::Integer;
}

void requireNumber(Expr &operand)
{
    if (operand.kind == ExprKind::Text)
        readLiteral(operand, ExprType::Double);
    if (operand.type == ExprType::Text)
        throwMismatch(operand);
}

} // namespace

void throwMismatch(const Expr &expr)
{
    throw Error(
        Error::TypeMismatch,
        QStringLiteral("Los tipos de datos no coinciden en la expresión: %1.").arg(toText(expr).left(60)));
}

void meetCurrency(Expr &literal)
{
    if (literal.kind != ExprKind::Number)
        return;
    const double number = literal.literal.number();
    if (std::abs(number) > 9e14)
        return;
    const basic::Currency money = basic::Currency::fromDouble(number);
    if (money.toDouble() != number)
        return;
    literal.literal = money;
    literal.type = ExprType::Currency;
}

void typeComparison(ExprPtr &comparison)
{
    Expr &a = *comparison->operands[0];
    Expr &b = *comparison->operands[1];
    comparison->type = ExprType::Condition;
    if (a.kind == ExprKind::Null || b.kind == ExprKind::Null) {
        if (comparison->op == Operator::Equal || comparison->op == Operator::NotEqual) {
            comparison->kind = ExprKind::IsNull;
            comparison->negated = comparison->op == Operator::NotEqual;
            if (a.kind == ExprKind::Null)
                std::swap(comparison->operands[0], comparison->operands[1]);
            comparison->operands.pop_back();
        }
        return;
    }
    unify(a, b);
}

void typeArithmetic(Expr &e)
{
    Expr &a = *e.operands[0];
    Expr &b = *e.operands[1];
    switch (e.op) {
    case Operator::Join:
        e.type = ExprType::Text;
        return;
    case Operator::Add:
        unify(a, b);
        e.type = sumType(a.type, b.type, e.op);
        return;
    default:
        break;
    }
    requireNumber(a);
    requireNumber(b);
    switch (e.op) {
    case Operator::Subtract:
        unify(a, b);
        e.type = sumType(a.type, b.type, e.op);
        return;
    case Operator::Multiply:
        if (a.type == ExprType::Currency && b.type != ExprType::Double)
            e.type = ExprType::Currency;
        else if (b.type == ExprType::Currency && a.type != ExprType::Double)
            e.type = ExprType::Currency;
        else
            e.type = isNumber(a.type) && isNumber(b.type) && a.type != ExprType::Double &&
                             b.type != ExprType::Double
                         ? ExprType::Integer
                         : ExprType::Double;
        return;
    case Operator::IntDivide:
    case Operator::Modulo:
        e.type = ExprType::Integer;
        return;
    default:
        e.type = ExprType::Double;
    }
}

void typeBetween(Expr &between)
{
    unify(*between.operands[0], *between.operands[1]);
    unify(*between.operands[0], *between.operands[2]);
    between.type = ExprType::Condition;
}

void typeIn(Expr &in)
{
    for (size_t i = 1; i < in.operands.size(); ++i)
        unify(*in.operands[0], *in.operands[i]);
    if (in.select && in.select->columns.size() != 1)
        throwMismatch(in);
    in.type = ExprType::Condition;
}

void typeNegation(Expr &negation)
{
    requireNumber(*negation.operands[0]);
    const ExprType type = negation.operands[0]->type;
    negation.type = type == ExprType::Bit || type == ExprType::Condition ? ExprType::Integer
                    : type == ExprType::Date                             ? ExprType::Double
                                                                         : type;
}

void requireCondition(const Expr &expr)
{
    if (expr.type == ExprType::Text)
        throwMismatch(expr);
}

} // namespace dao
