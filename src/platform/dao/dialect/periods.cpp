#include "platform/dao/dialect/periods.h"

#include "platform/dao/dialect/binder.h"

#include <QDate>

#include <optional>
#include <vector>

namespace dao
{

namespace
{

/// Dates are held as days with their fraction, which run in order from here on.
constexpr int firstYear = 1900, lastYear = 9998;

/// A condition "function(column) = whole number" of the chain.
struct Asked {
    const Expr *column;
    int value;
};

void collect(const Expr &condition, std::vector<const Expr *> &terms)
{
    if (condition.kind == ExprKind::Logic && condition.op == Operator::And) {
        collect(*condition.operands[0], terms);
        collect(*condition.operands[1], terms);
    } else {
        terms.push_back(&condition);
    }
}

std::optional<Asked> asks(const Expr &term, QLatin1StringView function)
{
    if (term.kind != ExprKind::Compare || term.op != Operator::Equal)
        return std::nullopt;
    const Expr *call = term.operands[0].get(), *value = term.operands[1].get();
    if (call->kind != ExprKind::Call)
        std::swap(call, value);
    if (call->kind != ExprKind::Call || call->name.compare(function, Qt::CaseInsensitive) != 0 ||
        value->kind != ExprKind::Number)
        return std::nullopt;
    const Expr &column = *call->operands[0];
    const double number = value->literal.number();
    const int whole = static_cast<int>(number);
    if (column.kind != ExprKind::Name || column.type != ExprType::Date || number != whole)
        return std::nullopt;
    return Asked{&column, whole};
}

ExprPtr compared(const Expr &column, Operator op, QDate date)
{
    auto literal = std::make_unique<Expr>();
    literal->kind = ExprKind::Date;
    literal->type = ExprType::Date;
    literal->literal = basic::Date(date);
    auto compare = std::make_unique<Expr>();
    compare->kind = ExprKind::Compare;
    compare->op = op;
    compare->type = ExprType::Condition;
    compare->operands.push_back(column.clone());
    compare->operands.push_back(std::move(literal));
    return compare;
}

ExprPtr both(ExprPtr first, ExprPtr second)
{
    auto logic = std::make_unique<Expr>();
    logic->kind = ExprKind::Logic;
    logic->op = Operator::And;
    logic->type = ExprType::Condition;
    logic->operands.push_back(std::move(first));
    logic->operands.push_back(std::move(second));
    return logic;
}

} // namespace

void addPeriods(ExprPtr &condition)
{
    std::vector<const Expr *> terms;
    collect(*condition, terms);
    std::vector<ExprPtr> ranges;
    for (const Expr *term : terms) {
        const auto year = asks(*term, QLatin1StringView("Year"));
        if (!year || year->value < firstYear || year->value > lastYear)
            continue;
        QDate from(year->value, 1, 1), to = from.addYears(1);
        for (const Expr *other : terms)
            if (const auto month = asks(*other, QLatin1StringView("Month"));
                month && sameBound(*month->column, *year->column) && month->value >= 1 &&
                month->value <= 12) {
                from = QDate(year->value, month->value, 1);
                to = from.addMonths(1);
            }
        ranges.push_back(both(compared(*year->column, Operator::GreaterEqual, from),
                              compared(*year->column, Operator::Less, to)));
    }
    for (ExprPtr &range : ranges)
        condition = both(std::move(condition), std::move(range));
}

} // namespace dao
