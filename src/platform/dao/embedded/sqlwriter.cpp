#include "platform/dao/embedded/sqlwriter.h"

#include "platform/dao/dialect/types.h"
#include "platform/dao/embedded/embeddedemitter.h"

using namespace Qt::StringLiterals;

namespace dao
{

namespace
{

/// The columns of a table that a query in parentheses stands for.
QString derivedColumn(int ordinal)
{
    return u'c' + QString::number(ordinal);
}

} // namespace

template <class List, class Write>
void SqlWriter::separated(const List &list, QStringView separator, Write &&write)
{
    bool first = true;
    for (const auto &item : list) {
        if (!first)
            sql_ += separator;
        first = false;
        write(item);
    }
}

EngineSql SqlWriter::taken()
{
    return {std::move(sql_), std::move(parameters_)};
}

EngineSql SqlWriter::statement()
{
    if (const auto *selected = std::get_if<SelectPtr>(&bound_.statement)) {
        select(**selected, false);
    } else if (const auto *inserted = std::get_if<Insert>(&bound_.statement)) {
        insert(*inserted);
    } else if (const auto *updated = std::get_if<Update>(&bound_.statement)) {
        update(*updated);
    } else if (const auto *removed = std::get_if<Delete>(&bound_.statement)) {
        sql_ = u"DELETE FROM "_s + engineTable(*bound_.target);
        if (removed->where) {
            sql_ += u" WHERE ";
            condition(*removed->where);
        }
    }
    return taken();
}

void SqlWriter::select(const Select &select, bool inner)
{
    member(select, inner);
    for (const auto &next : select.unions) {
        sql_ += next->unionAll ? u" UNION ALL " : u" UNION ";
        member(*next, inner);
    }
    order(select);
    limit(select.top);
}

void SqlWriter::member(const Select &select, bool inner)
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

void SqlWriter::from(const Select &select)
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

void SqlWriter::table(const TableRef &ref)
{
    if (ref.join == JoinKind::None) {
        if (ref.source->table) {
            sql_ += engineTable(*ref.source->table);
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

void SqlWriter::order(const Select &select)
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
        sql_ += direction(item.descending);
    });
}

void SqlWriter::keyOf(const Source &source)
{
    sql_ += source.engineAlias + u'.' + engineName(source.table->keyColumn);
}

void SqlWriter::keyOrder(const Select &select, bool reversed)
{
    sql_ += u" ORDER BY ";
    for (const OrderItem &item : select.orderBy) {
        collated(*item.expr);
        sql_ += direction(item.descending != reversed);
        sql_ += u", ";
    }
    // Rows that the order leaves equal come in the order in which they were entered.
    separated(bound_.tables, u", ", [&](const Source *source) {
        keyOf(*source);
        if (reversed)
            sql_ += u" DESC";
    });
}

void SqlWriter::keysAndColumns(const std::vector<int> &columns)
{
    sql_ += u"SELECT ";
    separated(bound_.tables, u", ", [&](const Source *source) { keyOf(*source); });
    for (int column : columns) {
        sql_ += u", ";
        value(*bound_.columns[static_cast<size_t>(column)].expr);
    }
}

EngineSql SqlWriter::keys(const KeyQuery &query)
{
    const Select &select = bound_.select();
    keysAndColumns(query.columns);
    from(select);
    if (query.criterion) {
        sql_ += select.where ? u" AND " : u" WHERE ";
        condition(*query.criterion);
    }
    if (query.beyond) {
        sql_ += select.where ? u" AND " : u" WHERE ";
        keyOf(*bound_.tables.front());
        sql_ += u" > ";
        place();
    }
    keyOrder(select, query.reversed);
    if (query.beyond) {
        sql_ += u" LIMIT ";
        place();
    } else {
        limit(query.limit);
    }
    return taken();
}

EngineSql SqlWriter::rows(const std::vector<int> &columns, Fetch fetch, int keys)
{
    keysAndColumns(columns);
    sql_ += u" FROM ";
    if (fetch == Fetch::Tuple) {
        sql_ += u"(SELECT 1)";
        for (const Source *source : bound_.tables) {
            sql_ +=
                u" LEFT JOIN "_s + engineTable(*source->table) + u" AS "_s + source->engineAlias + u" ON "_s;
            keyOf(*source);
            sql_ += u" = ";
            place();
        }
        return taken();
    }
    const Source &source = *bound_.tables.front();
    sql_ += engineTable(*source.table) + u" AS "_s + source.engineAlias + u" WHERE "_s;
    keyOf(source);
    if (fetch == Fetch::Range) {
        sql_ += u" BETWEEN ";
        place();
        sql_ += u" AND ";
        place();
    } else {
        sql_ += u" IN (";
        for (int i = 0; i < keys; ++i) {
            if (i > 0)
                sql_ += u',';
            place();
        }
        sql_ += u')';
    }
    return taken();
}

/// The number of rows; negative for all of them.
void SqlWriter::limit(qint64 rows)
{
    if (rows >= 0)
        sql_ += u" LIMIT "_s + QString::number(rows);
}

QStringView SqlWriter::direction(bool descending)
{
    return descending ? u" DESC NULLS LAST" : u" ASC NULLS FIRST";
}

void SqlWriter::place()
{
    sql_ += u'?' + QString::number(static_cast<qsizetype>(parameters_.size()) + ++places_);
}

void SqlWriter::insert(const Insert &insert)
{
    const Table &table = *bound_.target;
    QStringList names;
    std::vector<const FieldDef *> fields;
    for (const QString &name : insert.columns) {
        names << engineName(name);
        fields.push_back(&table.columns[static_cast<size_t>(table.ordinal(name))]);
    }
    sql_ = u"INSERT INTO "_s + engineTable(table) + u" ("_s + names.join(u", ") + u") "_s;
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

void SqlWriter::update(const Update &update)
{
    const Table &table = *bound_.target;
    sql_ = u"UPDATE "_s + engineTable(table) + u" SET "_s;
    separated(update.assignments, u", ", [&](const Assignment &assignment) {
        sql_ += engineColumn(table, assignment.ordinal) + u" = "_s;
        assigned(*assignment.value, table.columns[static_cast<size_t>(assignment.ordinal)]);
    });
    if (update.where) {
        sql_ += u" WHERE ";
        condition(*update.where);
    }
}

void SqlWriter::column(const Expr &expr)
{
    const Source &source = *expr.source;
    if (!source.table) {
        sql_ += source.engineAlias + u'.' + derivedColumn(expr.column);
        return;
    }
    sql_ += source.engineAlias.isEmpty() ? engineName(source.table->name) : source.engineAlias;
    sql_ += u'.' + engineColumn(*source.table, expr.column);
}

} // namespace dao
