#include "platform/dao/dialect/binder.h"
#include "platform/dao/dialect/periods.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/dialect/functions.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/types.h"
#include "platform/dao/dialect/typing.h"
#include "platform/dao/error.h"

#include <algorithm>
#include <cmath>

namespace dao
{

namespace
{

[[noreturn]] void throwUnknown(const Expr &name)
{
    throw Error(Error::BadParameters,
                QStringLiteral("Pocos parámetros: no existe el campo '%1'.").arg(name.name));
}

[[noreturn]] void throwAmbiguous(const Expr &name)
{
    throw Error(
        Error::AmbiguousName,
        QStringLiteral("El campo '%1' puede referirse a más de una tabla de la consulta.").arg(name.name));
}

/// Ordinal of a column in a source that holds its own, and its type.
std::optional<std::pair<int, ExprType>> columnOf(const Source &source, QStringView name)
{
    const auto &columns = source.table ? source.table->columns : source.query->columns;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (sameName(columns[i].name, name))
            return std::pair(static_cast<int>(i), exprTypeOf(columns[i].type));
    }
    return {};
}

const Expr *mergedColumn(const Source &source, QStringView name)
{
    const auto it = std::find_if(source.merged.begin(), source.merged.end(),
                                 [&](const auto &column) { return sameName(column.first, name); });
    return it == source.merged.end() ? nullptr : it->second.get();
}

ExprType callType(const FunctionDef &function, const Expr &call)
{
    const ExprType first = call.operands.empty() ? ExprType::Null : call.operands.front()->type;
    const ExprType last = call.operands.empty() ? ExprType::Null : call.operands.back()->type;
    switch (function.yields) {
    case Yields::Integer:
        return ExprType::Integer;
    case Yields::Double:
        return ExprType::Double;
    case Yields::Date:
        return ExprType::Date;
    case Yields::Text:
        return ExprType::Text;
    case Yields::Condition:
        return ExprType::Condition;
    case Yields::SameAsFirst:
        return first == ExprType::Condition ? ExprType::Bit : first;
    case Yields::SameAsLast:
        break;
    case Yields::Sum:
        return first == ExprType::Currency || first == ExprType::Double ? first : ExprType::Integer;
    case Yields::Average:
        return first == ExprType::Currency ? first : ExprType::Double;
    }
    // IIf(c, a, b) and Nz(a, b): one branch may be Null.
    return last == ExprType::Null && call.operands.size() >= 2 ? call.operands[call.operands.size() - 2]->type
                                                               : last;
}

/// The date that a constant conversion gives.
std::optional<basic::Date> constantDate(const Expr &call)
{
    const Expr &operand = *call.operands.front();
    if (!operand.isLiteral() || operand.kind == ExprKind::Null || operand.kind == ExprKind::Boolean)
        return {};
    std::optional<basic::Date> date;
    if (operand.kind == ExprKind::Text)
        date = basic::toDate(*operand.literal.as<QString>());
    else
        date = operand.literal.date();
    if (!date)
        throwMismatch(call);
    if (sameName(call.name, u"DateValue"))
        return date->dateOnly();
    if (sameName(call.name, u"TimeValue"))
        return basic::Date(date->time());
    return date;
}

void becomeDate(Expr &expr, basic::Date date)
{
    expr.kind = ExprKind::Date;
    expr.type = ExprType::Date;
    expr.literal = date;
    expr.operands.clear();
    expr.name.clear();
}

} // namespace

bool sameBound(const Expr &a, const Expr &b)
{
    if (a.kind != b.kind || a.op != b.op || a.negated != b.negated || a.literal != b.literal ||
        a.source != b.source || a.column != b.column || a.function != b.function || a.select || b.select ||
        a.operands.size() != b.operands.size())
        return false;
    return std::equal(a.operands.begin(), a.operands.end(), b.operands.begin(),
                      [](const ExprPtr &x, const ExprPtr &y) { return sameBound(*x, *y); });
}

void Binder::bindCriterion(ExprPtr &expr, const Bound &bound)
{
    Bound scratch;
    bound_ = &scratch;
    criterionOf_ = &bound;
    bindCondition(expr, Scope());
    criterionOf_ = nullptr;
}

void Binder::bindCondition(ExprPtr &expr, const Scope &scope)
{
    bindExpr(expr, scope);
    requireCondition(*expr);
    addPeriods(expr);
}

void Binder::bindExpr(ExprPtr &expr, const Scope &scope)
{
    switch (expr->kind) {
    case ExprKind::Name:
        bindName(expr, scope);
        return;
    case ExprKind::Call:
        bindCall(expr, scope);
        return;
    case ExprKind::Subquery:
    case ExprKind::Exists:
        bindSubquery(*expr, scope);
        return;
    case ExprKind::Star:
        throw Error(Error::SyntaxError, QStringLiteral("Uso no válido de '*' en la expresión."));
    default:
        break;
    }
    for (ExprPtr &operand : expr->operands)
        bindExpr(operand, scope);
    switch (expr->kind) {
    case ExprKind::Boolean:
        expr->type = ExprType::Bit;
        break;
    case ExprKind::Number:
        expr->type = expr->literal.kind() == basic::Value::Kind::Long ? ExprType::Integer : ExprType::Double;
        break;
    case ExprKind::Text:
        expr->type = ExprType::Text;
        break;
    case ExprKind::Date:
        expr->type = ExprType::Date;
        break;
    case ExprKind::Negate:
        typeNegation(*expr);
        break;
    case ExprKind::Not:
    case ExprKind::Logic:
        for (const ExprPtr &operand : expr->operands)
            requireCondition(*operand);
        expr->type = ExprType::Condition;
        break;
    case ExprKind::Arithmetic:
        typeArithmetic(*expr);
        break;
    case ExprKind::Compare:
        typeComparison(expr);
        break;
    case ExprKind::Between:
        typeBetween(*expr);
        break;
    case ExprKind::In:
        if (expr->select)
            bindSubquery(*expr, scope);
        typeIn(*expr);
        break;
    case ExprKind::Like:
    case ExprKind::IsNull:
        expr->type = ExprType::Condition;
        break;
    default:
        break;
    }
}

void Binder::bindSubquery(Expr &expr, const Scope &scope)
{
    if (criterionOf_)
        throw Error(Error::SyntaxError,
                    QStringLiteral("Un criterio de búsqueda no puede tener una consulta."));
    const bool allowed = aggregatesAllowed_;
    bindSelect(*expr.select, &scope, *bound_, false);
    aggregatesAllowed_ = allowed;
    if (expr.kind == ExprKind::Exists) {
        expr.type = ExprType::Condition;
        return;
    }
    if (expr.select->columns.size() != 1)
        throw Error(Error::SyntaxError, QStringLiteral("La subconsulta debe dar una sola columna."));
    if (expr.kind == ExprKind::Subquery)
        expr.type = exprTypeOf(expr.select->columns.front().type);
}

void Binder::bindName(ExprPtr &expr, const Scope &scope)
{
    if (criterionOf_) {
        if (!resolveOutput(expr))
            throwUnknown(*expr);
        return;
    }
    if (expr->source) { // from a star
        const auto &columns =
            expr->source->table ? expr->source->table->columns : expr->source->query->columns;
        expr->type = exprTypeOf(columns[static_cast<size_t>(expr->column)].type);
        return;
    }
    for (const Scope *at = &scope; at; at = at->outer) {
        if (resolveIn(expr, *at))
            return;
    }
    throwUnknown(*expr);
}

bool Binder::resolveIn(ExprPtr &expr, const Scope &scope)
{
    const Expr *merged = nullptr;
    int found = 0;
    for (const Source *source : scope.sources) {
        if (!expr->qualifier.isEmpty() && !sameName(source->alias, expr->qualifier))
            continue;
        if (source->isMerged()) {
            const Expr *column = mergedColumn(*source, expr->name);
            merged = column ? column : merged;
            found += column != nullptr;
        } else if (const auto column = columnOf(*source, expr->name)) {
            ++found;
            expr->source = source;
            expr->column = column->first;
            expr->type = column->second;
        }
    }
    if (found > 1)
        throwAmbiguous(*expr);
    if (merged)
        expr = merged->clone();
    return found == 1;
}

bool Binder::resolveOutput(ExprPtr &expr)
{
    for (const OutputColumn &column : criterionOf_->columns) {
        if (!sameName(column.field.name, expr->name))
            continue;
        if (!expr->qualifier.isEmpty() && !sameName(column.qualifier, expr->qualifier))
            continue;
        expr = column.expr->clone();
        return true;
    }
    return false;
}

void Binder::bindCall(ExprPtr &expr, const Scope &scope)
{
    const int index = functionNamed(expr->name);
    if (index < 0)
        throw Error(Error::SyntaxError,
                    QStringLiteral("Función '%1' sin definir en la expresión.").arg(expr->name));
    const FunctionDef &function = functions()[static_cast<size_t>(index)];
    expr->function = index;
    const auto given = static_cast<int>(expr->operands.size());
    if (given < function.fewest || given > function.most)
        throw Error(Error::SyntaxError,
                    QStringLiteral("Número de argumentos incorrecto en la función '%1'.").arg(expr->name));
    if (function.aggregate) {
        if (!aggregatesAllowed_)
            throw Error(Error::SyntaxError,
                        QStringLiteral("No puede haber una función de agregado en este lugar: %1.")
                            .arg(toText(*expr).left(60)));
        aggregates_ = true;
        aggregatesAllowed_ = false;
    }
    for (ExprPtr &operand : expr->operands) {
        if (operand->kind == ExprKind::Star && function.aggregate && sameName(function.name, u"Count"))
            continue;
        bindExpr(operand, scope);
    }
    if (function.aggregate)
        aggregatesAllowed_ = true;
    if (given == 0) {
        bound_->timeDependent = true;
        becomeDate(*expr, sameName(function.name, u"Date") ? basic::today()
                          : sameName(function.name, u"Now")
                              ? basic::Date(basic::now().date(), basic::now().time())
                              : basic::time());
        return;
    }
    if (function.takes == Takes::Date && function.yields == Yields::Date) {
        if (const auto date = constantDate(*expr)) {
            becomeDate(*expr, *date);
            return;
        }
    }
    expr->type = callType(function, *expr);
    if (function.yields == Yields::SameAsLast && expr->type == ExprType::Currency) {
        for (const ExprPtr &operand : expr->operands)
            meetCurrency(*operand);
    }
}

} // namespace dao
