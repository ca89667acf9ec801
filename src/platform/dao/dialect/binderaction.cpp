#include "platform/dao/dialect/binder.h"

#include "platform/dao/dialect/types.h"
#include "platform/dao/error.h"

#include <algorithm>

namespace dao
{

namespace
{

/// A primary key identifies its row: none of its columns may be unknown.
void requireKey(const Table &table, const QString &column, const Expr *value)
{
    const int ordinal = table.ordinal(column);
    const bool given = value ? value->kind != ExprKind::Null : ordinal == table.counter;
    if (!given && table.columns[static_cast<size_t>(ordinal)].type != FieldType::Bit)
        throw Error(Error::NullKey,
                    QStringLiteral("El índice o la clave principal no puede contener un valor Nulo."));
}

bool isPrimaryKey(const IndexDef &index)
{
    return index.primary && index.unique;
}

void requireKeys(const Table &table, const Insert &insert)
{
    if (insert.select)
        return;
    for (const IndexDef &index : table.indexes) {
        if (!isPrimaryKey(index))
            continue;
        for (const QString &field : index.fields) {
            const auto it = std::find(insert.columns.begin(), insert.columns.end(), field);
            const auto place = static_cast<size_t>(it - insert.columns.begin());
            requireKey(table, field, it == insert.columns.end() ? nullptr : insert.values[place].get());
        }
    }
}

void requireKeys(const Table &table, const Update &update)
{
    for (const IndexDef &index : table.indexes) {
        for (const Assignment &assignment : update.assignments) {
            const QString &column = table.columns[static_cast<size_t>(assignment.ordinal)].name;
            if (isPrimaryKey(index) && index.fields.contains(column))
                requireKey(table, column, assignment.value.get());
        }
    }
}

} // namespace

TablePtr Binder::requireTable(const QString &name) const
{
    TablePtr table = catalogue_.table(name);
    if (!table)
        throw Error(Error::NotATable,
                    QStringLiteral("No se encuentra la tabla o consulta de origen '%1'.").arg(name));
    return table;
}

void Binder::bindAssigned(ExprPtr &value, const FieldDef &field, const Scope &scope)
{
    bindExpr(value, scope);
    if (!value->isLiteral())
        return;
    value->literal = converted(value->literal, field);
    value->type = value->literal.isNull() ? ExprType::Null : exprTypeOf(field.type);
}

void Binder::bindInsert(Insert &insert, Bound &bound)
{
    bound.target = requireTable(insert.table);
    if (insert.columns.empty()) {
        for (const FieldDef &column : bound.target->columns)
            insert.columns.push_back(column.name);
    }
    std::vector<const FieldDef *> fields;
    for (QString &name : insert.columns) {
        const int ordinal = bound.target->ordinal(name);
        if (ordinal < 0)
            throw Error(
                Error::BadParameters,
                QStringLiteral("La instrucción INSERT INTO contiene el nombre de campo desconocido '%1'.")
                    .arg(name));
        fields.push_back(&bound.target->columns[static_cast<size_t>(ordinal)]);
        name = fields.back()->name;
    }
    if (insert.select)
        bindSelect(*insert.select, nullptr, bound, false);
    const size_t given = insert.select ? insert.select->items.size() : insert.values.size();
    if (given != fields.size())
        throw Error(
            Error::SyntaxError,
            QStringLiteral("El número de valores de la consulta y el de campos de destino no son iguales."));
    const Scope none;
    for (size_t i = 0; i < insert.values.size(); ++i)
        bindAssigned(insert.values[i], *fields[i], none);
    requireKeys(*bound.target, insert);
}

/// The table that an action works on, under its own name.
Binder::Scope Binder::scopeOfTarget(const QString &table, Bound &bound)
{
    bound.target = requireTable(table);
    Source *source = addSource(bound.target->name, false);
    source->engineAlias.clear();
    source->table = bound.target;
    Scope scope;
    scope.sources = {source};
    return scope;
}

void Binder::bindUpdate(Update &update, Bound &bound)
{
    const Scope scope = scopeOfTarget(update.table, bound);
    for (Assignment &assignment : update.assignments) {
        assignment.ordinal = bound.target->ordinal(assignment.column);
        if (assignment.ordinal < 0)
            throw Error(Error::BadParameters,
                        QStringLiteral("Pocos parámetros: no existe el campo '%1'.").arg(assignment.column));
        bindAssigned(assignment.value, bound.target->columns[static_cast<size_t>(assignment.ordinal)], scope);
    }
    requireKeys(*bound.target, update);
    if (update.where)
        bindCondition(update.where, scope);
}

void Binder::bindDelete(Delete &remove, Bound &bound)
{
    const Scope scope = scopeOfTarget(remove.table, bound);
    if (remove.where)
        bindCondition(remove.where, scope);
}

} // namespace dao
