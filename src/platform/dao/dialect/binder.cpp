#include "platform/dao/dialect/binder.h"

#include "platform/dao/dialect/functions.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/parser.h"
#include "platform/dao/dialect/types.h"
#include "platform/dao/dialect/typing.h"
#include "platform/dao/error.h"

#include <algorithm>
#include <iterator>

namespace dao
{

namespace
{

bool hasAggregates(const Expr &expr)
{
    if (expr.kind == ExprKind::Call) {
        const int function = functionNamed(expr.name);
        if (function >= 0 && functions()[static_cast<size_t>(function)].aggregate)
            return true;
    }
    return std::any_of(expr.operands.begin(), expr.operands.end(),
                       [](const ExprPtr &o) { return hasAggregates(*o); });
}

// A saved query may name another; this many deep it names itself.
constexpr int deepestQuery = 16;

bool grouped(const Expr &expr, const std::vector<ExprPtr> &groups)
{
    if (std::any_of(groups.begin(), groups.end(), [&](const ExprPtr &g) { return sameBound(*g, expr); }))
        return true;
    if (expr.kind == ExprKind::Name)
        return false;
    if (expr.kind == ExprKind::Call && functions()[static_cast<size_t>(expr.function)].aggregate)
        return true;
    return std::all_of(expr.operands.begin(), expr.operands.end(),
                       [&](const ExprPtr &o) { return grouped(*o, groups); });
}

/// The alias, else the column's own name, else the dialect's running name.
QString shownName(const SelectItem &item, size_t ordinal)
{
    if (!item.alias.isEmpty())
        return item.alias;
    return item.expr->kind == ExprKind::Name ? item.expr->name : QStringLiteral("Expr%1").arg(1000 + ordinal);
}

/// A query whose rows are rows of tables, so that it can be merged into one that names it.
bool isPlain(const Select &select)
{
    return !select.distinct && select.top < 0 && select.groupBy.empty() && !select.having &&
           select.unions.empty() && !select.from.empty();
}

void addCondition(ExprPtr &where, ExprPtr condition)
{
    if (!where) {
        where = std::move(condition);
        return;
    }
    auto both = std::make_unique<Expr>();
    both->kind = ExprKind::Logic;
    both->op = Operator::And;
    both->type = ExprType::Condition;
    both->operands.push_back(std::move(where));
    both->operands.push_back(std::move(condition));
    where = std::move(both);
}

} // namespace

std::shared_ptr<Bound> Binder::bind(Statement statement)
{
    auto bound = std::make_shared<Bound>();
    bound->statement = std::move(statement);
    bound_ = bound.get();
    if (auto *select = std::get_if<SelectPtr>(&bound->statement))
        bindSelect(**select, nullptr, *bound, true);
    else if (auto *insert = std::get_if<Insert>(&bound->statement))
        bindInsert(*insert, *bound);
    else if (auto *update = std::get_if<Update>(&bound->statement))
        bindUpdate(*update, *bound);
    else if (auto *remove = std::get_if<Delete>(&bound->statement))
        bindDelete(*remove, *bound);
    return bound;
}

void Binder::bindSelect(Select &select, const Scope *outer, Bound &bound, bool top)
{
    Scope scope;
    scope.outer = outer;
    const bool outerAggregates = aggregates_;
    bindMember(select, scope);
    const bool hadAggregates = aggregates_;
    for (const auto &member : select.unions) {
        Scope own;
        own.outer = outer;
        bindMember(*member, own);
        if (member->columns.size() != select.columns.size())
            throw Error(Error::SyntaxError,
                        QStringLiteral("El número de columnas de las consultas de la unión no coincide."));
    }
    bindOrder(select, scope);
    if (select.orderBy.empty())
        select.orderBy = std::move(scope.order);
    aggregates_ = outerAggregates;
    if (!top)
        return;
    describe(bound);
    if (isPlain(select) && !hadAggregates)
        findRows(bound);
}

void Binder::bindMember(Select &select, Scope &scope)
{
    for (auto &ref : select.from)
        bindFrom(ref, scope, false);
    if (select.where)
        bindCondition(select.where, scope);
    for (ExprPtr &condition : scope.conditions)
        addCondition(select.where, std::move(condition));
    expandStars(select, scope);
    aggregates_ = false;
    bindItems(select, scope);
    aggregatesAllowed_ = true;
    if (select.having)
        bindCondition(select.having, scope);
    aggregatesAllowed_ = false;
    for (ExprPtr &group : select.groupBy)
        bindExpr(group, scope);
    if (!aggregates_ && select.groupBy.empty())
        return;
    for (const SelectItem &item : select.items) {
        if (!grouped(*item.expr, select.groupBy))
            throw Error(Error::NotAggregated,
                        QStringLiteral("La consulta no incluye la expresión %1 como parte de una "
                                       "función de agregado.")
                            .arg(toText(*item.expr).left(60)));
    }
}

void Binder::bindItems(Select &select, const Scope &scope)
{
    select.columns.clear();
    for (size_t i = 0; i < select.items.size(); ++i) {
        const QString name = shownName(select.items[i], i);
        aggregatesAllowed_ = true;
        bindExpr(select.items[i].expr, scope);
        aggregatesAllowed_ = false;
        const Expr &expr = *select.items[i].expr;
        FieldDef field = fieldOf(expr.type, name);
        if (expr.kind == ExprKind::Name) {
            const auto &columns =
                expr.source->table ? expr.source->table->columns : expr.source->query->columns;
            field = columns[static_cast<size_t>(expr.column)];
            field.name = name;
        }
        select.columns.push_back(std::move(field));
    }
}

void Binder::bindOrder(Select &select, const Scope &scope)
{
    aggregatesAllowed_ = true;
    for (OrderItem &order : select.orderBy) {
        qint64 ordinal = order.expr->kind == ExprKind::Number ? order.expr->literal.integer() : 0;
        if (order.expr->kind == ExprKind::Name && order.expr->qualifier.isEmpty()) {
            // A union is ordered by the names that it shows; elsewhere these come after the columns.
            const bool isUnion = !select.unions.empty();
            if (isUnion || !resolveIn(order.expr, scope)) {
                for (size_t i = 0; i < select.columns.size() && ordinal == 0; ++i) {
                    if (sameName(select.columns[i].name, order.expr->name))
                        ordinal = static_cast<qint64>(i) + 1;
                }
            } else {
                continue;
            }
        }
        if (ordinal >= 1 && ordinal <= static_cast<qint64>(select.items.size())) {
            order.expr = select.items[static_cast<size_t>(ordinal - 1)].expr->clone();
            continue;
        }
        bindExpr(order.expr, scope);
    }
    aggregatesAllowed_ = false;
}

void Binder::expandStars(Select &select, const Scope &scope) const
{
    std::vector<SelectItem> items;
    for (SelectItem &item : select.items) {
        if (item.expr->kind != ExprKind::Star) {
            items.push_back(std::move(item));
            continue;
        }
        const size_t before = items.size();
        for (const Source *source : scope.sources) {
            if (!item.expr->qualifier.isEmpty() && !sameName(source->alias, item.expr->qualifier))
                continue;
            const auto add = [&](const QString &name, int ordinal) {
                auto column = std::make_unique<Expr>();
                column->kind = ExprKind::Name;
                column->position = item.expr->position;
                column->name = name;
                if (source->isMerged()) {
                    column->qualifier = source->alias; // resolved with the written names
                } else {
                    column->source = source;
                    column->column = ordinal;
                }
                items.push_back({std::move(column), {}});
            };
            if (source->isMerged()) {
                for (const auto &[name, expr] : source->merged)
                    add(name, -1);
                continue;
            }
            const auto &columns = source->table ? source->table->columns : source->query->columns;
            for (size_t i = 0; i < columns.size(); ++i)
                add(columns[i].name, static_cast<int>(i));
        }
        if (items.size() == before)
            throw Error(Error::SyntaxError,
                        QStringLiteral("No hay tabla para '%1' en la consulta.").arg(toText(*item.expr)));
    }
    select.items = std::move(items);
}

void Binder::describe(Bound &bound) const
{
    const Select &select = bound.select();
    for (size_t i = 0; i < select.items.size(); ++i) {
        const Expr &expr = *select.items[i].expr;
        OutputColumn column{select.columns[i], {}, &expr};
        if (expr.kind == ExprKind::Name)
            column.qualifier = expr.source->alias;
        bound.columns.push_back(std::move(column));
    }
}

namespace
{

bool joinsByUniqueColumn(const Expr &condition, const Source &source)
{
    if (condition.kind == ExprKind::Logic && condition.op == Operator::And)
        return joinsByUniqueColumn(*condition.operands[0], source) ||
               joinsByUniqueColumn(*condition.operands[1], source);
    if (condition.kind != ExprKind::Compare || condition.op != Operator::Equal)
        return false;
    return std::any_of(condition.operands.begin(), condition.operands.end(), [&](const ExprPtr &operand) {
        if (operand->kind != ExprKind::Name || operand->source != &source)
            return false;
        if (operand->column == source.table->counter)
            return true;
        const QString &column = source.table->columns[static_cast<size_t>(operand->column)].name;
        return std::any_of(
            source.table->indexes.begin(), source.table->indexes.end(), [&](const IndexDef &index) {
                return index.unique && index.fields.size() == 1 && sameName(index.fields[0], column);
            });
    });
}

void collectConditions(const TableRef &ref, std::vector<const Expr *> &conditions)
{
    if (ref.join == JoinKind::None)
        return;
    conditions.push_back(ref.on.get());
    collectConditions(*ref.left, conditions);
    collectConditions(*ref.right, conditions);
}

bool collectTables(const TableRef &ref, std::vector<const Source *> &tables)
{
    if (ref.join != JoinKind::None)
        return collectTables(*ref.left, tables) && collectTables(*ref.right, tables);
    tables.push_back(ref.source);
    return ref.source->table != nullptr;
}

} // namespace

void Binder::findRows(Bound &bound) const
{
    std::vector<const Expr *> conditions;
    for (const auto &ref : bound.select().from) {
        if (!collectTables(*ref, bound.tables)) {
            bound.tables.clear();
            return;
        }
        collectConditions(*ref, conditions);
    }
    if (bound.select().where)
        conditions.push_back(bound.select().where.get());
    bound.rowwise = true;
    // The row that stands for a row of the join is that of the table at the "many" end: the one that no
    // condition reaches by a unique column.
    const auto isOneSide = [&](const Source *source) {
        return std::any_of(conditions.begin(), conditions.end(),
                           [&](const Expr *condition) { return joinsByUniqueColumn(*condition, *source); });
    };
    if (bound.tables.size() > 1)
        std::stable_partition(bound.tables.begin(), bound.tables.end(),
                              [&](const Source *source) { return !source->nullable && !isOneSide(source); });
}

Source *Binder::addSource(const QString &alias, bool nullable)
{
    auto source = std::make_unique<Source>();
    source->alias = alias;
    source->engineAlias = u't' + QString::number(bound_->sources.size());
    source->nullable = nullable;
    bound_->sources.push_back(std::move(source));
    return bound_->sources.back().get();
}

void Binder::bindFrom(std::unique_ptr<TableRef> &ref, Scope &scope, bool nullable)
{
    if (ref->join != JoinKind::None) {
        bindFrom(ref->left, scope, nullable || ref->join == JoinKind::Right);
        bindFrom(ref->right, scope, nullable || ref->join == JoinKind::Left);
        bindCondition(ref->on, scope);
        return;
    }
    const QString alias = ref->alias.isEmpty() ? ref->name : ref->alias;
    if (TablePtr table = catalogue_.table(ref->name)) {
        Source *source = addSource(alias, nullable);
        source->table = std::move(table);
        ref->source = source;
        scope.sources.push_back(source);
    } else if (const auto query = catalogue_.query(ref->name)) {
        bindSavedQuery(ref, *query, scope, nullable);
    } else {
        throw Error(Error::NotATable,
                    QStringLiteral("No se encuentra la tabla o consulta de origen '%1'.").arg(ref->name));
    }
}

void Binder::bindSavedQuery(std::unique_ptr<TableRef> &ref, const QString &text, Scope &scope, bool nullable)
{
    if (++depth_ > deepestQuery)
        throw Error(Error::SyntaxError,
                    QStringLiteral("La consulta '%1' se nombra a sí misma.").arg(ref->name));
    SelectPtr inner = parseSelect(text);
    const auto aggregate = [](const SelectItem &item) { return hasAggregates(*item.expr); };
    if (isPlain(*inner) && !nullable && std::none_of(inner->items.begin(), inner->items.end(), aggregate)) {
        mergeQuery(ref, std::move(inner), scope);
    } else {
        Source *source = addSource(ref->alias.isEmpty() ? ref->name : ref->alias, nullable);
        bindSelect(*inner, nullptr, *bound_, false);
        source->query = std::move(inner);
        ref->source = source;
        scope.sources.push_back(source);
    }
    --depth_;
}

void Binder::mergeQuery(std::unique_ptr<TableRef> &ref, SelectPtr inner, Scope &scope)
{
    Scope own;
    for (auto &from : inner->from)
        bindFrom(from, own, false);
    if (inner->where) {
        bindCondition(inner->where, own);
        scope.conditions.push_back(std::move(inner->where));
    }
    std::move(own.conditions.begin(), own.conditions.end(), std::back_inserter(scope.conditions));
    expandStars(*inner, own);
    bindItems(*inner, own);
    bindOrder(*inner, own);
    std::vector<OrderItem> &order = inner->orderBy.empty() ? own.order : inner->orderBy;
    std::move(order.begin(), order.end(), std::back_inserter(scope.order));
    Source *source = addSource(ref->alias.isEmpty() ? ref->name : ref->alias, false);
    for (size_t i = 0; i < inner->items.size(); ++i)
        source->merged.emplace_back(inner->columns[i].name, std::move(inner->items[i].expr));
    std::unique_ptr<TableRef> tree = std::move(inner->from.front());
    for (size_t i = 1; i < inner->from.size(); ++i) {
        auto join = std::make_unique<TableRef>();
        join->join = JoinKind::Inner;
        join->left = std::move(tree);
        join->right = std::move(inner->from[i]);
        join->on = std::make_unique<Expr>();
        join->on->kind = ExprKind::Boolean;
        join->on->literal = true;
        join->on->type = ExprType::Bit;
        tree = std::move(join);
    }
    ref = std::move(tree);
    scope.sources.push_back(source);
}

} // namespace dao
