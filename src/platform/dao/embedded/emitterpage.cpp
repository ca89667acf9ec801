#include "platform/dao/embedded/emitter.h"

namespace dao
{

using namespace Qt::StringLiterals;

QString Emitter::countRows(const Table &table)
{
    return u"SELECT count(*) FROM "_s + engineName(table.name);
}

QString Emitter::page(const Table &table, const std::vector<int> &columns, const PageQuery &query)
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
        wanted << engineName(table.columns[static_cast<size_t>(column)].name);

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

    const QString direction = query.backwards ? u" DESC"_s : QString();
    QStringList order;
    for (qsizetype i = query.equal; i < names.size(); ++i)
        order << names[i] + direction;
    order << key + direction;
    return u"SELECT "_s + wanted.join(u", "_s) + u" FROM "_s + engineName(table.name) +
           (conditions.isEmpty() ? QString() : u" WHERE "_s + conditions.join(u" AND "_s)) + u" ORDER BY "_s +
           order.join(u", "_s) + u" LIMIT ?"_s;
}

} // namespace dao
