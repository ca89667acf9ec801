#include "platform/dao/dialect/parser.h"
#include "platform/dao/sqltext.h"

namespace dao
{

namespace
{

/// Walks a query and whatever queries lie inside it.
class TableNames
{
public:
    void visit(const Select &select)
    {
        for (const SelectItem &item : select.items)
            visit(item.expr);
        for (const auto &table : select.from)
            visit(*table);
        visit(select.where);
        for (const ExprPtr &expr : select.groupBy)
            visit(expr);
        visit(select.having);
        for (const OrderItem &item : select.orderBy)
            visit(item.expr);
        for (const SelectPtr &member : select.unions)
            visit(*member);
    }
    QStringList names;

private:
    void visit(const TableRef &table)
    {
        if (table.join == JoinKind::None) {
            names += table.name;
            return;
        }
        visit(*table.left);
        visit(*table.right);
        visit(table.on);
    }
    void visit(const ExprPtr &expr)
    {
        if (!expr)
            return;
        for (const ExprPtr &operand : expr->operands)
            visit(operand);
        if (expr->select)
            visit(*expr->select);
    }
};

} // namespace

QStringList tablesNamed(const QString &select)
{
    TableNames walk;
    walk.visit(*parseSelect(select));
    return walk.names;
}

} // namespace dao
