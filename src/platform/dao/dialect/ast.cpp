#include "platform/dao/dialect/ast.h"

#include "platform/dao/dialect/names.h"

#include <algorithm>

namespace dao
{

namespace
{

template <class T>
bool same(const std::unique_ptr<T> &a, const std::unique_ptr<T> &b)
{
    return a && b ? *a == *b : !a && !b;
}

template <class T>
bool same(const std::vector<std::unique_ptr<T>> &a, const std::vector<std::unique_ptr<T>> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto &x, const auto &y) { return same(x, y); });
}

template <class T>
std::unique_ptr<T> cloned(const std::unique_ptr<T> &p)
{
    return p ? p->clone() : nullptr;
}

template <class T>
void cloneInto(std::vector<std::unique_ptr<T>> &to, const std::vector<std::unique_ptr<T>> &from)
{
    to.reserve(from.size());
    for (const auto &p : from)
        to.push_back(cloned(p));
}

} // namespace

ExprPtr Expr::clone() const
{
    auto copy = std::make_unique<Expr>();
    copy->kind = kind;
    copy->op = op;
    copy->negated = negated;
    copy->position = position;
    copy->qualifier = qualifier;
    copy->name = name;
    copy->literal = literal;
    cloneInto(copy->operands, operands);
    copy->select = cloned(select);
    copy->type = type;
    copy->source = source;
    copy->column = column;
    copy->function = function;
    return copy;
}

bool Expr::operator==(const Expr &other) const
{
    return kind == other.kind && op == other.op && negated == other.negated &&
           sameName(qualifier, other.qualifier) && sameName(name, other.name) && literal == other.literal &&
           same(operands, other.operands) && same(select, other.select);
}

bool SelectItem::operator==(const SelectItem &other) const
{
    return same(expr, other.expr) && alias == other.alias;
}

bool OrderItem::operator==(const OrderItem &other) const
{
    return same(expr, other.expr) && descending == other.descending;
}

bool TableRef::operator==(const TableRef &other) const
{
    return join == other.join && name == other.name && alias == other.alias && same(left, other.left) &&
           same(right, other.right) && same(on, other.on);
}

std::unique_ptr<TableRef> TableRef::clone() const
{
    auto copy = std::make_unique<TableRef>();
    copy->join = join;
    copy->name = name;
    copy->alias = alias;
    copy->position = position;
    copy->left = cloned(left);
    copy->right = cloned(right);
    copy->on = cloned(on);
    copy->source = source;
    return copy;
}

bool Select::operator==(const Select &other) const
{
    return distinct == other.distinct && top == other.top && items == other.items && same(from, other.from) &&
           same(where, other.where) && same(groupBy, other.groupBy) && same(having, other.having) &&
           orderBy == other.orderBy && same(unions, other.unions) && unionAll == other.unionAll;
}

std::unique_ptr<Select> Select::clone() const
{
    auto copy = std::make_unique<Select>();
    copy->distinct = distinct;
    copy->top = top;
    for (const SelectItem &item : items)
        copy->items.push_back({cloned(item.expr), item.alias});
    cloneInto(copy->from, from);
    copy->where = cloned(where);
    cloneInto(copy->groupBy, groupBy);
    copy->having = cloned(having);
    for (const OrderItem &item : orderBy)
        copy->orderBy.push_back({cloned(item.expr), item.descending});
    cloneInto(copy->unions, unions);
    copy->unionAll = unionAll;
    copy->columns = columns;
    return copy;
}

bool Insert::operator==(const Insert &other) const
{
    return table == other.table && columns == other.columns && same(values, other.values) &&
           same(select, other.select);
}

bool Assignment::operator==(const Assignment &other) const
{
    return column == other.column && same(value, other.value);
}

bool Update::operator==(const Update &other) const
{
    return table == other.table && assignments == other.assignments && same(where, other.where);
}

bool Delete::operator==(const Delete &other) const
{
    return table == other.table && same(where, other.where);
}

bool CreateIndex::operator==(const CreateIndex &other) const
{
    return table == other.table && index.name == other.index.name && index.fields == other.index.fields &&
           index.unique == other.index.unique && index.primary == other.index.primary;
}

bool sameStatement(const Statement &a, const Statement &b)
{
    if (a.index() != b.index())
        return false;
    if (const auto *select = std::get_if<SelectPtr>(&a))
        return same(*select, std::get<SelectPtr>(b));
    return a == b;
}

} // namespace dao
