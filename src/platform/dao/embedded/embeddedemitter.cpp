#include "platform/dao/embedded/embeddedemitter.h"

#include "platform/dao/embedded/sqlwriter.h"

namespace dao
{

using namespace Qt::StringLiterals;

QString engineName(const QString &name)
{
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString engineTable(const Table &table)
{
    return table.schema.isEmpty() ? engineName(table.name) : table.schema + u'.' + engineName(table.name);
}

QString engineColumn(const Table &table, int ordinal)
{
    return engineName(table.columns[static_cast<size_t>(ordinal)].name);
}

EngineSql EmbeddedEmitter::statement(const Bound &bound) const
{
    return SqlWriter(bound).statement();
}

EngineSql EmbeddedEmitter::keys(const Bound &bound, const KeyQuery &query) const
{
    return SqlWriter(bound).keys(query);
}

EngineSql EmbeddedEmitter::rows(const Bound &bound, const std::vector<int> &columns, Fetch fetch,
                                int keys) const
{
    return SqlWriter(bound).rows(columns, fetch, keys);
}

QString EmbeddedEmitter::countRows(const Table &table) const
{
    return u"SELECT count(*) FROM "_s + engineTable(table);
}

QString EmbeddedEmitter::page(const Table &table, const std::vector<int> &columns,
                              const PageQuery &query) const
{
    const QString key = engineName(table.keyColumn);
    QStringList names;
    if (query.index) {
        for (const QString &field : query.index->fields)
            names << engineName(field);
    }
    QStringList wanted{key};
    wanted << names;
    for (int column : columns)
        wanted << engineColumn(table, column);

    QStringList conditions;
    for (int i = 0; i < query.equal; ++i)
        conditions << names[i] + ((query.nulls >> i) & 1 ? u" IS NULL"_s : u" = ?"_s);
    if (query.next != PageQuery::Next::Any) {
        static constexpr QStringView comparisons[] = {{},       u" > ?",     u" >= ?",       u" < ?",
                                                      u" <= ?", u" IS NULL", u" IS NOT NULL"};
        conditions << names[query.equal] + comparisons[static_cast<size_t>(query.next)].toString();
    }
    if (query.key == PageQuery::Key::Only)
        conditions << key + u" = ?"_s;
    else if (query.key != PageQuery::Key::Any)
        conditions << key + (query.backwards ? u" <"_s : u" >"_s) +
                          (query.key == PageQuery::Key::From ? u"= ?"_s : u" ?"_s);

    QStringList order;
    for (qsizetype i = query.equal; i < names.size(); ++i)
        order << names[i] + SqlWriter::direction(query.backwards).toString();
    order << key + (query.backwards ? u" DESC"_s : QString());
    return u"SELECT "_s + wanted.join(u", "_s) + u" FROM "_s + engineTable(table) +
           (conditions.isEmpty() ? QString() : u" WHERE "_s + conditions.join(u" AND "_s)) + u" ORDER BY "_s +
           order.join(u", "_s) + (query.whole ? QString() : u" LIMIT ?"_s);
}

QString EmbeddedEmitter::insertRow(const Table &table, const std::vector<int> &columns) const
{
    if (columns.empty())
        return u"INSERT INTO "_s + engineTable(table) + u" DEFAULT VALUES"_s;
    QStringList names;
    QStringList places;
    for (int column : columns) {
        names << engineColumn(table, column);
        places << QStringLiteral("?");
    }
    return u"INSERT INTO "_s + engineTable(table) + u" ("_s + names.join(u',') + u") VALUES ("_s +
           places.join(u',') + u')';
}

QString EmbeddedEmitter::updateRow(const Table &table, const std::vector<int> &columns) const
{
    QStringList assignments;
    for (int column : columns)
        assignments << engineColumn(table, column) + u" = ?"_s;
    return u"UPDATE "_s + engineTable(table) + u" SET "_s + assignments.join(u", ") + u" WHERE "_s +
           engineName(table.keyColumn) + u" = ?"_s;
}

QString EmbeddedEmitter::deleteRow(const Table &table) const
{
    return u"DELETE FROM "_s + engineTable(table) + u" WHERE "_s + engineName(table.keyColumn) + u" = ?"_s;
}

} // namespace dao
