#include "platform/dao/embedded/embeddedengine.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/types.h"

#include <algorithm>

/// The dialect's tables in the engine's file. Types stand in the declared types of the columns, the
/// properties of an index in its name: there is no catalogue beside the engine's own.
namespace dao
{

using namespace Qt::StringLiterals;

namespace
{

/// Identifies the rows of a table without a COUNTER; no statement of the dialect sees it.
const QString hiddenKey = u"_fila"_s;
const QString queriesTable = u"_consultas"_s;
const QString scratchSchema = u"memoria"_s;

struct DeclaredType {
    QStringView text;
    FieldType type;
};

// Each declared type has the affinity that its values need: INT whole numbers, REAL and DOUB floating ones.
constexpr std::array declaredTypes{
    DeclaredType{u"INTEGER", FieldType::Counter},       DeclaredType{u"LONG INT", FieldType::Long},
    DeclaredType{u"SHORT INT", FieldType::Integer},     DeclaredType{u"DOUBLE", FieldType::Double},
    DeclaredType{u"CURRENCY INT", FieldType::Currency}, DeclaredType{u"MEMO TEXT", FieldType::Memo},
    DeclaredType{u"BIT INT", FieldType::Bit},           DeclaredType{u"DATE REAL", FieldType::Date},
    DeclaredType{u"TIME REAL", FieldType::Time},
};

QString declaration(const FieldDef &column)
{
    switch (column.type) {
    case FieldType::Counter:
        return u"INTEGER PRIMARY KEY AUTOINCREMENT"_s;
    case FieldType::Text:
        return u"TEXT(%1) COLLATE ESPANOL"_s.arg(column.size);
    case FieldType::Memo:
        return u"MEMO TEXT COLLATE ESPANOL"_s;
    case FieldType::Bit:
        return u"BIT INT NOT NULL DEFAULT 0"_s;
    default:
        return std::find_if(declaredTypes.begin(), declaredTypes.end(),
                            [&](const DeclaredType &d) { return d.type == column.type; })
            ->text.toString();
    }
}

FieldDef declaredField(const QString &name, const QString &type)
{
    if (type.startsWith(u"TEXT("))
        return {name, FieldType::Text, type.sliced(5, type.size() - 6).toInt()};
    for (const DeclaredType &declared : declaredTypes) {
        if (declared.text == type)
            return {name, declared.type, defaultSize(declared.type)};
    }
    return {name, FieldType::Memo, 0};
}

QString columnList(const std::vector<FieldDef> &columns)
{
    const bool counted = std::any_of(columns.begin(), columns.end(), [](const FieldDef &column) {
        return column.type == FieldType::Counter;
    });
    QStringList list;
    if (!counted)
        list << engineName(hiddenKey) + u" INTEGER PRIMARY KEY AUTOINCREMENT"_s;
    for (const FieldDef &column : columns)
        list << engineName(column.name) + u' ' + declaration(column);
    return list.join(u", "_s);
}

/// "p|Tabla|nombre": primary, unique or plain; the engine has one set of index names for all tables.
QString indexName(const QString &table, const IndexDef &index)
{
    const QStringView kind = index.unique ? (index.primary ? u"p|" : u"u|") : u"i|";
    return kind.toString() + table + u'|' + index.name;
}

IndexDef indexNamed(const QString &table, const QString &engineIndex)
{
    IndexDef index;
    index.name = engineIndex.mid(table.size() + 3);
    index.unique = engineIndex.startsWith(u"p|") || engineIndex.startsWith(u"u|");
    index.primary = engineIndex.startsWith(u"p|") || sameName(index.name, u"PrimaryKey");
    return index;
}

QString createIndexSql(const QString &table, const IndexDef &index)
{
    QStringList columns;
    for (const QString &field : index.fields)
        columns << engineName(field);
    return (index.unique ? u"CREATE UNIQUE INDEX "_s : u"CREATE INDEX "_s) +
           engineName(indexName(table, index)) + u" ON "_s + engineName(table) + u" ("_s +
           columns.join(u", "_s) + u')';
}

} // namespace

EngineCatalogue EmbeddedEngine::readCatalogue()
{
    EngineCatalogue catalogue;
    bool queriesKept = false;
    const auto columns = prepare(u"SELECT m.name, p.name, p.type, p.pk FROM main.sqlite_schema AS m, "
                                 "pragma_table_info(m.name, 'main') AS p WHERE m.type = 'table' "
                                 "AND m.name NOT GLOB 'sqlite_*' ORDER BY m.rowid, p.cid"_s);
    {
        const StatementRun run(*columns);
        while (columns->step()) {
            const QString tableName = QString::fromUtf8(columns->text(0));
            const QString name = QString::fromUtf8(columns->text(1));
            if (tableName == queriesTable) {
                queriesKept = true;
                continue;
            }
            if (catalogue.tables.empty() || catalogue.tables.back().name != tableName)
                catalogue.tables.push_back({tableName, {}, {}, u"rowid"_s, -1, {}});
            Table &table = catalogue.tables.back();
            const bool key = columns->integer(3) != 0;
            if (key)
                table.keyColumn = name;
            if (name == hiddenKey)
                continue;
            if (key)
                table.counter = static_cast<int>(table.columns.size());
            table.columns.push_back(declaredField(name, QString::fromUtf8(columns->text(2))));
        }
    }
    const auto indexes = prepare(u"SELECT m.tbl_name, m.name, i.name FROM main.sqlite_schema AS m, "
                                 "pragma_index_info(m.name, 'main') AS i WHERE m.type = 'index' "
                                 "AND m.sql IS NOT NULL ORDER BY m.rowid, i.seqno"_s);
    {
        const StatementRun run(*indexes);
        QString last;
        while (indexes->step()) {
            const QString tableName = QString::fromUtf8(indexes->text(0));
            const auto table = std::find_if(catalogue.tables.begin(), catalogue.tables.end(),
                                            [&](const Table &t) { return t.name == tableName; });
            if (table == catalogue.tables.end())
                continue;
            const QString name = QString::fromUtf8(indexes->text(1));
            if (name != last)
                table->indexes.push_back(indexNamed(tableName, name));
            last = name;
            table->indexes.back().fields << QString::fromUtf8(indexes->text(2));
        }
    }
    if (!queriesKept) // in what was left of a damaged file
        return catalogue;
    const auto queries = prepare(u"SELECT nombre, texto FROM "_s + engineName(queriesTable));
    const StatementRun run(*queries);
    while (queries->step())
        catalogue.queries.emplace_back(QString::fromUtf8(queries->text(0)),
                                       QString::fromUtf8(queries->text(1)));
    return catalogue;
}

void EmbeddedEngine::createTable(const QString &name, const std::vector<FieldDef> &columns)
{
    run((u"CREATE TABLE "_s + engineName(name) + u" ("_s + columnList(columns) + u')').toUtf8());
}

void EmbeddedEngine::dropTable(const Table &table)
{
    run((u"DROP TABLE "_s + engineName(table.name)).toUtf8());
}

void EmbeddedEngine::createIndex(const Table &table, const IndexDef &index)
{
    run(createIndexSql(table.name, index).toUtf8());
}

void EmbeddedEngine::dropIndex(const Table &table, const IndexDef &index)
{
    run((u"DROP INDEX "_s + engineName(indexName(table.name, index))).toUtf8());
}

void EmbeddedEngine::addColumn(const Table &table, const FieldDef &column)
{
    if (column.type != FieldType::Counter) {
        run((u"ALTER TABLE "_s + engineName(table.name) + u" ADD COLUMN "_s + engineName(column.name) + u' ' +
             declaration(column))
                .toUtf8());
        return;
    }
    std::vector<FieldDef> columns = table.columns;
    columns.push_back(column);
    rebuild(table, columns);
}

void EmbeddedEngine::dropColumn(const Table &table, int ordinal)
{
    if (ordinal != table.counter) {
        run((u"ALTER TABLE "_s + engineName(table.name) + u" DROP COLUMN "_s +
             engineName(table.columns[static_cast<size_t>(ordinal)].name))
                .toUtf8());
        return;
    }
    std::vector<FieldDef> columns = table.columns;
    columns.erase(columns.begin() + ordinal);
    rebuild(table, columns);
}

void EmbeddedEngine::changeColumn(const Table &table, const FieldDef &column)
{
    std::vector<FieldDef> columns = table.columns;
    columns[static_cast<size_t>(table.ordinal(column.name))] = column;
    rebuild(table, columns);
}

void EmbeddedEngine::rebuild(const Table &table, const std::vector<FieldDef> &columns)
{
    const QString fresh = engineName(u"_nueva"_s);
    QStringList kept;
    for (const FieldDef &column : columns) {
        if (table.ordinal(column.name) >= 0)
            kept << engineName(column.name);
    }
    // Rows get their numbers in the order in which they were entered.
    const QString list = kept.join(u", "_s);
    const QString copy = kept.isEmpty() ? QString()
                                        : u"INSERT INTO "_s + fresh + u" ("_s + list + u") SELECT "_s + list +
                                              u" FROM "_s + engineName(table.name) + u" ORDER BY "_s +
                                              engineName(table.keyColumn);
    run((u"CREATE TABLE "_s + fresh + u" ("_s + columnList(columns) + u')').toUtf8());
    run(copy.toUtf8());
    run((u"DROP TABLE "_s + engineName(table.name)).toUtf8());
    run((u"ALTER TABLE "_s + fresh + u" RENAME TO "_s + engineName(table.name)).toUtf8());
    for (const IndexDef &index : table.indexes)
        run(createIndexSql(table.name, index).toUtf8());
}

void EmbeddedEngine::saveQuery(const QString &name, const QString &text)
{
    const auto statement =
        prepare(u"INSERT OR REPLACE INTO "_s + engineName(queriesTable) + u" VALUES (?, ?)"_s);
    statement->bind(0, name);
    statement->bind(1, text);
    statement->run();
}

Table EmbeddedEngine::createScratchTable(const std::vector<FieldDef> &columns)
{
    if (!scratch_)
        run((u"ATTACH ':memory:' AS "_s + scratchSchema + u" KEY ''"_s).toUtf8());
    scratch_ = true;
    Table table;
    table.schema = scratchSchema;
    table.name = u"r%1"_s.arg(++scratchTables_);
    table.keyColumn = hiddenKey;
    for (size_t i = 0; i < columns.size(); ++i) {
        FieldDef column = columns[i];
        column.name = u"c%1"_s.arg(i);
        if (column.type == FieldType::Counter)
            column.type = FieldType::Long;
        table.columns.push_back(std::move(column));
    }
    QStringList list{hiddenKey + u" INTEGER PRIMARY KEY"_s};
    for (const FieldDef &column : table.columns)
        list << column.name + u' ' + (column.type == FieldType::Bit ? u"BIT INT"_s : declaration(column));
    run((u"CREATE TABLE "_s + scratchSchema + u'.' + table.name + u" ("_s + list.join(u", "_s) + u')')
            .toUtf8());
    return table;
}

void EmbeddedEngine::dropScratchTable(const Table &table) noexcept
{
    const QByteArray sql = (u"DROP TABLE "_s + scratchSchema + u'.' + table.name).toUtf8();
    try {
        run(sql);
    } catch (const Error &) {
        // It is gone with the connection at the latest.
    }
}

} // namespace dao
