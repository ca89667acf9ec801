#include "platform/dao/engine/catalogue.h"

#include "platform/dao/dialect/collation.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/engine/engine.h"

#include <algorithm>

namespace dao
{

namespace
{

QStringList inSpanishOrder(QStringList names)
{
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return compareSpanish(a, b) < 0; });
    return names;
}

} // namespace

int Table::ordinal(QStringView column) const
{
    for (size_t i = 0; i < columns.size(); ++i) {
        if (sameName(columns[i].name, column))
            return static_cast<int>(i);
    }
    return -1;
}

const IndexDef *Table::index(QStringView indexName) const
{
    for (const IndexDef &index : indexes) {
        if (sameName(index.name, indexName))
            return &index;
    }
    return nullptr;
}

TablePtr Catalogue::table(QStringView name) const
{
    return tables_.value(name.toString().toCaseFolded());
}

std::optional<QString> Catalogue::query(QStringView name) const
{
    const auto it = queries_.constFind(name.toString().toCaseFolded());
    return it == queries_.cend() ? std::nullopt : std::optional(it->second);
}

QStringList Catalogue::tableNames() const
{
    QStringList names;
    for (const TablePtr &table : tables_)
        names << table->name;
    return inSpanishOrder(names);
}

QStringList Catalogue::queryNames() const
{
    QStringList names;
    for (const auto &[name, text] : queries_)
        names << name;
    return inSpanishOrder(names);
}

void Catalogue::reload()
{
    version_ = engine_->schemaVersion();
    EngineCatalogue read = engine_->readCatalogue();
    tables_.clear();
    for (Table &table : read.tables) {
        const QString key = table.name.toCaseFolded();
        tables_.insert(key, std::make_shared<const Table>(std::move(table)));
    }
    queries_.clear();
    for (const auto &[name, text] : read.queries)
        queries_.insert(name.toCaseFolded(), {name, text});
    ++generation_;
}

bool Catalogue::refresh()
{
    if (engine_->schemaVersion() == version_)
        return false;
    reload();
    return true;
}

} // namespace dao
