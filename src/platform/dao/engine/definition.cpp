#include "platform/dao/dialect/names.h"
#include "platform/dao/engine/connection.h"

#include <algorithm>

/// The statements that change the structure of the file. Each fails by its number where the change is there
/// already: the upgrade runs its whole list at every start and relies on it.
namespace dao
{

namespace
{

constexpr int longestName = 64;

void requireName(const Engine &engine, const QString &name)
{
    if (name.isEmpty() || name.size() > longestName || engine.reservesName(name))
        throw Error(Error::SyntaxError, QStringLiteral("'%1' no es un nombre válido.").arg(name));
}

void requireOneCounter(const std::vector<FieldDef> &columns)
{
    const auto counters = std::count_if(columns.begin(), columns.end(), [](const FieldDef &column) {
        return column.type == FieldType::Counter;
    });
    if (counters > 1)
        throw Error(Error::SyntaxError, QStringLiteral("Una tabla sólo puede tener un campo contador."));
}

Error fieldExists(const QString &name)
{
    return {Error::FieldExists, QStringLiteral("El campo '%1' ya existe en la tabla.").arg(name)};
}

} // namespace

TablePtr DatabasePrivate::existingTable(const QString &name)
{
    TablePtr table = catalogue().table(name);
    if (!table)
        throw Error(Error::TableNotFound, QStringLiteral("La tabla '%1' no existe.").arg(name));
    return table;
}

int DatabasePrivate::existingColumn(const Table &table, const QString &name)
{
    const int ordinal = table.ordinal(name);
    if (ordinal < 0)
        throw Error(Error::FieldNotFound,
                    QStringLiteral("El campo '%1' no existe en la tabla '%2'.").arg(name, table.name));
    return ordinal;
}

void DatabasePrivate::createTable(const CreateTable &create)
{
    requireName(engine(), create.table);
    if (catalogue().table(create.table) || catalogue().query(create.table))
        throw Error(Error::TableExists, QStringLiteral("La tabla '%1' ya existe.").arg(create.table));
    for (size_t i = 0; i < create.columns.size(); ++i) {
        requireName(engine(), create.columns[i].name);
        for (size_t j = 0; j < i; ++j) {
            if (sameName(create.columns[i].name, create.columns[j].name))
                throw fieldExists(create.columns[i].name);
        }
    }
    requireOneCounter(create.columns);
    engine().createTable(create.table, create.columns);
}

void DatabasePrivate::createIndex(const CreateIndex &create)
{
    const TablePtr table = existingTable(create.table);
    requireName(engine(), create.index.name);
    if (table->index(create.index.name))
        throw Error(
            Error::IndexExists,
            QStringLiteral("El índice '%1' ya existe en la tabla '%2'.").arg(create.index.name, table->name));
    if (create.index.primary && create.index.unique &&
        std::any_of(table->indexes.begin(), table->indexes.end(),
                    [](const IndexDef &index) { return index.primary && index.unique; }))
        throw Error(Error::IndexExists,
                    QStringLiteral("La tabla '%1' ya tiene una clave principal.").arg(table->name));
    IndexDef index = create.index;
    for (QString &field : index.fields)
        field = table->columns[static_cast<size_t>(existingColumn(*table, field))].name;
    engine().createIndex(*table, index);
}

void DatabasePrivate::dropIndex(const DropIndex &drop)
{
    const TablePtr table = existingTable(drop.table);
    const IndexDef *index = table->index(drop.index);
    if (!index)
        throw Error(
            Error::IndexNotFound,
            QStringLiteral("El índice '%1' no existe en la tabla '%2'.").arg(drop.index, table->name));
    engine().dropIndex(*table, *index);
}

void DatabasePrivate::addColumn(const AddColumn &add)
{
    const TablePtr table = existingTable(add.table);
    requireName(engine(), add.column.name);
    if (table->ordinal(add.column.name) >= 0)
        throw fieldExists(add.column.name);
    std::vector<FieldDef> columns = table->columns;
    columns.push_back(add.column);
    requireOneCounter(columns);
    engine().addColumn(*table, add.column);
}

void DatabasePrivate::dropColumn(const DropColumn &drop)
{
    const TablePtr table = existingTable(drop.table);
    const int ordinal = existingColumn(*table, drop.column);
    const QString &name = table->columns[static_cast<size_t>(ordinal)].name;
    const auto holds = [&](const IndexDef &index) { return index.fields.contains(name); };
    if (std::any_of(table->indexes.begin(), table->indexes.end(), holds))
        throw Error(
            Error::FieldInIndex,
            QStringLiteral("No se puede eliminar el campo '%1'; forma parte de un índice.").arg(name));
    if (table->columns.size() == 1)
        throw Error(Error::FieldInIndex, QStringLiteral("No se puede eliminar el único campo de la tabla."));
    engine().dropColumn(*table, ordinal);
}

void DatabasePrivate::alter(const std::function<void()> &change)
{
    const auto step = [&] {
        // Somebody else's change counts as this one's having taken effect.
        catalogue().refresh();
        change();
        return true;
    };
    if (batchDepth_ > 0) {
        inBatch(step);
    } else {
        engine().begin();
        try {
            step();
        } catch (...) {
            engine().rollback();
            throw;
        }
        commit();
    }
    catalogue().reload();
}

void DatabasePrivate::widenText(const QString &name, const QString &column, int size)
{
    alter([&] {
        const TablePtr table = existingTable(name);
        FieldDef field = table->columns[static_cast<size_t>(existingColumn(*table, column))];
        if (field.type != FieldType::Text || field.size >= size)
            return;
        field.size = size;
        engine().changeColumn(*table, field);
    });
}

void DatabasePrivate::saveQuery(const QString &name, const QString &text)
{
    alter([&] {
        if (name.isEmpty() || catalogue().table(name))
            throw Error(Error::TableExists, QStringLiteral("El objeto '%1' ya existe.").arg(name));
        engine().saveQuery(name, text);
    });
}

void DatabasePrivate::define(const Statement &statement)
{
    alter([&] {
        if (const auto *create = std::get_if<CreateTable>(&statement))
            createTable(*create);
        else if (const auto *drop = std::get_if<DropTable>(&statement))
            engine().dropTable(*existingTable(drop->table));
        else if (const auto *index = std::get_if<CreateIndex>(&statement))
            createIndex(*index);
        else if (const auto *noIndex = std::get_if<DropIndex>(&statement))
            dropIndex(*noIndex);
        else if (const auto *column = std::get_if<AddColumn>(&statement))
            addColumn(*column);
        else if (const auto *noColumn = std::get_if<DropColumn>(&statement))
            dropColumn(*noColumn);
    });
}

} // namespace dao
