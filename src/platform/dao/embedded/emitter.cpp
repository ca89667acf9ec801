#include "platform/dao/embedded/emitter.h"

#include "platform/dao/dialect/types.h"

using namespace Qt::StringLiterals;

namespace dao
{

QString engineName(const QString &name)
{
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

namespace
{

QString tableName(const Table &table)
{
    return table.schema.isEmpty() ? engineName(table.name) : table.schema + u'.' + engineName(table.name);
}

QString columnName(const Table &table, int ordinal)
{
    return engineName(table.columns[static_cast<size_t>(ordinal)].name);
}

/// The columns of a table that a query in parentheses stands for.
QString derivedColumn(int ordinal)
{
    return u'c' + QString::number(ordinal);
}

} // namespace

template <class List, class Write>
void Emitter::separated(const List &list, QStringView separator, Write &&write)
{
    bool first = true;
    for (const auto &item : list) {
        if (!first)
            sql_ += separator;
        first = false;
        write(item);
    }
}

EngineSql Emitter::statement(const Bound &bound)
{
    Emitter e(bound);
    e.sql_.reserve(512);
    if (const auto *select = std::get_if<SelectPtr>(&bound.statement)) {
        e.select(**select, false);
    } else if (const auto *insert = std::get_if<Insert>(&bound.statement)) {
        e.insert(*insert);
    } else if (const auto *update = std::get_if<Update>(&bound.statement)) {
        e.update(*update);
    } else if (const auto *remove = std::get_if<Delete>(&bound.statement)) {
        e.sql_ = u"DELETE FROM "_s + tableName(*bound.target);
        if (remove->where) {
            e.sql_ += u" WHERE ";
            e.condition(*remove->where);
        }
    }
    return {std::move(e.sql_), std::move(e.parameters_)};
}

void Emitter::select(const Select &select, bool inner)
{
    member(select, inner);
    for (const auto &next : select.unions) {
        sql_ += next->unionAll ? u" UNION ALL " : u" UNION ";
        member(*next, inner);
    }
    order(select);
    if (select.top >= 0)
        sql_ += u" LIMIT "_s + QString::number(select.top);
}

void Emitter::member(const Select &select, bool inner)
{
    const bool sharedBefore = sharing_;
    sharing_ = sharing_ || !select.groupBy.empty() || select.distinct;
    sql_ += select.distinct ? u"SELECT DISTINCT " : u"SELECT ";
    int ordinal = 0;
    separated(select.items, u", ", [&](const SelectItem &item) {
        collated(*item.expr);
        if (inner)
            sql_ += u" AS "_s + derivedColumn(ordinal);
        ++ordinal;
    });
    from(select);
    if (!select.groupBy.empty()) {
        sql_ += u" GROUP BY ";
        separated(select.groupBy, u", ", [&](const ExprPtr &group) { collated(*group); });
    }
    if (select.having) {
        sql_ += u" HAVING ";
        condition(*select.having);
    }
    sharing_ = sharedBefore || !select.orderBy.empty();
}

void Emitter::from(const Select &select)
{
    if (!select.from.empty()) {
        sql_ += u" FROM ";
        separated(select.from, u" CROSS JOIN ", [&](const auto &ref) { table(*ref); });
    }
    if (select.where) {
        // In parentheses, or OR would bind looser than what is added to it.
        sql_ += u" WHERE ";
        condition(*select.where);
    }
}

void Emitter::table(const TableRef &ref)
{
    if (ref.join == JoinKind::None) {
        if (ref.source->table) {
            sql_ += tableName(*ref.source->table);
        } else {
            sql_ += u'(';
            select(*ref.source->query, true);
            sql_ += u')';
        }
        sql_ += u" AS "_s + ref.source->engineAlias;
        return;
    }
    // A right join is the left join of the same two the other way round, which the engine plans better.
    const bool swapped = ref.join == JoinKind::Right;
    const TableRef &left = swapped ? *ref.right : *ref.left;
    const TableRef &right = swapped ? *ref.left : *ref.right;
    table(left);
    sql_ += ref.join == JoinKind::Inner ? u" JOIN " : u" LEFT JOIN ";
    const bool nested = right.join != JoinKind::None;
    if (nested)
        sql_ += u'(';
    table(right);
    if (nested)
        sql_ += u')';
    sql_ += u" ON ";
    condition(*ref.on);
}

void Emitter::order(const Select &select)
{
    if (select.orderBy.empty())
        return;
    sql_ += u" ORDER BY ";
    separated(select.orderBy, u", ", [&](const OrderItem &item) {
        // What the query shows goes by its place, which is the only way in a union.
        size_t place = select.unions.empty() ? select.items.size() : 0;
        while (place < select.items.size() && !sameBound(*select.items[place].expr, *item.expr))
            ++place;
        if (place < select.items.size())
            sql_ += QString::number(place + 1);
        else
            collated(*item.expr);
        if (item.descending)
            sql_ += u" DESC";
    });
}

void Emitter::keyOf(const Source &source)
{
    sql_ += source.engineAlias + u'.' + engineName(source.table->keyColumn);
}

void Emitter::keyOrder(const Select &select, bool reversed)
{
    sql_ += u" ORDER BY ";
    for (const OrderItem &item : select.orderBy) {
        collated(*item.expr);
        sql_ += item.descending != reversed ? u" DESC, " : u", ";
    }
    // Rows that the order leaves equal come in the order in which they were entered.
    separated(bound_.tables, u", ", [&](const Source *source) {
        keyOf(*source);
        if (reversed)
            sql_ += u" DESC";
    });
}

EngineSql Emitter::keys(const Bound &bound, const KeyQuery &query)
{
    Emitter e(bound);
    e.sql_.reserve(512);
    const Select &select = bound.select();
    e.sql_ += u"SELECT ";
    e.separated(bound.tables, u", ", [&](const Source *source) { e.keyOf(*source); });
    for (int column : query.columns) {
        e.sql_ += u", ";
        e.value(*bound.columns[static_cast<size_t>(column)].expr);
    }
    e.from(select);
    if (query.criterion) {
        e.sql_ += select.where ? u" AND " : u" WHERE ";
        e.condition(*query.criterion);
    }
    if (query.beyond) {
        e.sql_ += select.where ? u" AND " : u" WHERE ";
        e.keyOf(*bound.tables.front());
        e.sql_ += u" > ";
        e.place();
    }
    e.keyOrder(select, query.reversed);
    if (query.beyond) {
        e.sql_ += u" LIMIT ";
        e.place();
    } else if (query.limit >= 0) {
        e.sql_ += u" LIMIT "_s + QString::number(query.limit);
    }
    return {std::move(e.sql_), std::move(e.parameters_)};
}

bool Emitter::naturalOrder(const Bound &bound)
{
    return bound.tables.size() == 1 && bound.select().orderBy.empty();
}

EngineSql Emitter::rows(const Bound &bound, const std::vector<int> &columns, Fetch fetch, int keys)
{
    Emitter e(bound);
    e.sql_ += u"SELECT ";
    e.separated(bound.tables, u", ", [&](const Source *source) { e.keyOf(*source); });
    for (int column : columns) {
        e.sql_ += u", ";
        e.value(*bound.columns[static_cast<size_t>(column)].expr);
    }
    e.sql_ += u" FROM ";
    if (fetch == Fetch::Tuple) {
        e.sql_ += u"(SELECT 1)";
        for (const Source *source : bound.tables) {
            e.sql_ +=
                u" LEFT JOIN "_s + tableName(*source->table) + u" AS "_s + source->engineAlias + u" ON "_s;
            e.keyOf(*source);
            e.sql_ += u" = ";
            e.place();
        }
        return {std::move(e.sql_), std::move(e.parameters_)};
    }
    const Source &source = *bound.tables.front();
    e.sql_ += tableName(*source.table) + u" AS "_s + source.engineAlias + u" WHERE "_s;
    e.keyOf(source);
    if (fetch == Fetch::Range) {
        e.sql_ += u" BETWEEN ";
        e.place();
        e.sql_ += u" AND ";
        e.place();
    } else {
        e.sql_ += u" IN (";
        for (int i = 0; i < keys; ++i) {
            if (i > 0)
                e.sql_ += u',';
            e.place();
        }
        e.sql_ += u')';
    }
    return {std::move(e.sql_), std::move(e.parameters_)};
}

void Emitter::place()
{
    sql_ += u'?' + QString::number(static_cast<qsizetype>(parameters_.size()) + ++places_);
}

QString Emitter::insertRow(const Table &table, const std::vector<int> &columns)
{
    if (columns.empty())
        return u"INSERT INTO "_s + tableName(table) + u" DEFAULT VALUES"_s;
    QStringList names;
    QStringList places;
    for (int column : columns) {
        names << columnName(table, column);
        places << QStringLiteral("?");
    }
    return u"INSERT INTO "_s + tableName(table) + u" ("_s + names.join(u',') + u") VALUES ("_s +
           places.join(u',') + u')';
}

QString Emitter::updateRow(const Table &table, const std::vector<int> &columns)
{
    QStringList assignments;
    for (int column : columns)
        assignments << columnName(table, column) + u" = ?"_s;
    return u"UPDATE "_s + tableName(table) + u" SET "_s + assignments.join(u", ") + u" WHERE "_s +
           engineName(table.keyColumn) + u" = ?"_s;
}

QString Emitter::deleteRow(const Table &table)
{
    return u"DELETE FROM "_s + tableName(table) + u" WHERE "_s + engineName(table.keyColumn) + u" = ?"_s;
}

void Emitter::insert(const Insert &insert)
{
    const Table &table = *bound_.target;
    QStringList names;
    std::vector<const FieldDef *> fields;
    for (const QString &name : insert.columns) {
        names << engineName(name);
        fields.push_back(&table.columns[static_cast<size_t>(table.ordinal(name))]);
    }
    sql_ = u"INSERT INTO "_s + tableName(table) + u" ("_s + names.join(u", ") + u") "_s;
    if (!insert.select) {
        sql_ += u"VALUES (";
        size_t i = 0;
        separated(insert.values, u", ", [&](const ExprPtr &value) { assigned(*value, *fields[i++]); });
        sql_ += u')';
        return;
    }
    sql_ += u"SELECT ";
    Source source;
    source.engineAlias = QStringLiteral("s");
    for (size_t i = 0; i < fields.size(); ++i) {
        Expr column;
        column.kind = ExprKind::Name;
        column.source = &source;
        column.column = static_cast<int>(i);
        column.type = exprTypeOf(insert.select->columns[i].type);
        if (i > 0)
            sql_ += u", ";
        assigned(column, *fields[i]);
    }
    sql_ += u" FROM (";
    select(*insert.select, true);
    sql_ += u") AS s";
}

void Emitter::update(const Update &update)
{
    const Table &table = *bound_.target;
    sql_ = u"UPDATE "_s + tableName(table) + u" SET "_s;
    separated(update.assignments, u", ", [&](const Assignment &assignment) {
        sql_ += columnName(table, assignment.ordinal) + u" = "_s;
        assigned(*assignment.value, table.columns[static_cast<size_t>(assignment.ordinal)]);
    });
    if (update.where) {
        sql_ += u" WHERE ";
        condition(*update.where);
    }
}

void Emitter::column(const Expr &expr)
{
    const Source &source = *expr.source;
    if (!source.table) {
        sql_ += source.engineAlias + u'.' + derivedColumn(expr.column);
        return;
    }
    sql_ += source.engineAlias.isEmpty() ? engineName(source.table->name) : source.engineAlias;
    sql_ += u'.' + columnName(*source.table, expr.column);
}

} // namespace dao
