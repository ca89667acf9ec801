#include "platform/dao/recordsets/recordsetprivate.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/types.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao
{

RecordsetPrivate::RecordsetPrivate(DatabasePrivate &database, Recordset::Kind kind)
    : database_(&database), kind_(kind)
{
    database.recordsets().insert(this);
}

RecordsetPrivate::~RecordsetPrivate()
{
    if (database_)
        database_->recordsets().remove(this);
}

void RecordsetPrivate::detach()
{
    release();
    database_ = nullptr;
    editMode_ = Recordset::EditMode::None;
}

void RecordsetPrivate::throwClosed()
{
    throw Error(Error::Closed, QStringLiteral("El objeto no es válido o ya no está abierto."));
}

void RecordsetPrivate::throwNoCurrent()
{
    throw Error(Error::NoCurrentRecord, QStringLiteral("No hay ningún registro activo."));
}

void RecordsetPrivate::throwDeleted()
{
    throw Error(Error::RecordDeleted, QStringLiteral("El registro está eliminado."));
}

quint32 RecordsetPrivate::nameHash(QStringView name)
{
    if (name.isEmpty())
        return 0;
    // Letters beyond ASCII may differ by case in ways that are left to the comparison.
    const auto folded = [&](qsizetype i) -> quint32 {
        const char16_t code = name[i].unicode();
        return code < 0x80 ? code | 0x20u : 0u;
    };
    const qsizetype size = name.size();
    return static_cast<quint32>(size) * 131 + folded(0) * 31 + folded(size / 2) * 7 + folded(size - 1);
}

void RecordsetPrivate::setFields(std::vector<FieldDef> fields, std::vector<QString> qualifiers)
{
    fields_ = std::move(fields);
    qualifiers_ = std::move(qualifiers);
    edits_.assign(fields_.size(), std::nullopt);
    buckets_.assign(std::bit_ceil(fields_.size() * 2 + 1), -1);
    chain_.assign(fields_.size(), -1);
    following_.assign(fields_.size(), 0);
    lastAsked_ = 0;
    for (size_t i = fields_.size(); i-- > 0;) {
        const size_t bucket = nameHash(fields_[i].name) & (buckets_.size() - 1);
        chain_[i] = buckets_[bucket];
        buckets_[bucket] = static_cast<int>(i);
    }
}

int RecordsetPrivate::ordinal(QStringView name) const
{
    if (fields_.empty())
        return -1;
    // A walk over the rows asks for the same fields in the same order in each of them.
    int &guess = following_[static_cast<size_t>(lastAsked_)];
    const QString &guessed = fields_[static_cast<size_t>(guess)].name;
    if (guessed.size() == name.size() &&
        std::memcmp(guessed.constData(), name.data(), static_cast<size_t>(name.size()) * sizeof(QChar)) == 0)
        return lastAsked_ = guess;
    const int found = lookUp(name);
    if (found >= 0)
        lastAsked_ = guess = found;
    return found;
}

int RecordsetPrivate::lookUp(QStringView name) const
{
    for (int i = buckets_[nameHash(name) & (buckets_.size() - 1)]; i >= 0;
         i = chain_[static_cast<size_t>(i)]) {
        if (sameName(fields_[static_cast<size_t>(i)].name, name))
            return i;
    }
    const qsizetype point = name.indexOf(u'.');
    if (point < 0)
        return -1;
    for (size_t i = 0; i < fields_.size(); ++i) {
        if (sameName(qualifiers_[i], name.first(point)) && sameName(fields_[i].name, name.sliced(point + 1)))
            return static_cast<int>(i);
    }
    return -1;
}

void RecordsetPrivate::setIndex(QStringView)
{
    throw Error(Error::NotSupported, QStringLiteral("Operación no admitida para este tipo de objeto."));
}

void RecordsetPrivate::seek(QStringView, const std::vector<basic::Value> &)
{
    throw Error(Error::NotSupported, QStringLiteral("Operación no admitida para este tipo de objeto."));
}

basic::Value RecordsetPrivate::value(int ordinal)
{
    const auto at = static_cast<size_t>(ordinal);
    if (editMode_ != Recordset::EditMode::None) {
        if (edits_[at])
            return *edits_[at];
        if (editMode_ == Recordset::EditMode::Add)
            return fields_[at].type == FieldType::Bit ? basic::Value(false) : basic::Value(basic::Null());
    }
    return currentValue(ordinal);
}

void RecordsetPrivate::setValue(int ordinal, const basic::Value &value)
{
    database();
    if (editMode_ == Recordset::EditMode::None)
        throw Error(Error::NoEditOpen, QStringLiteral("Update o CancelUpdate sin AddNew o Edit."));
    if (!writable(ordinal))
        throw Error(Error::QueryNotUpdatable, QStringLiteral("No se puede actualizar el campo '%1'.")
                                                  .arg(fields_[static_cast<size_t>(ordinal)].name));
    edits_[static_cast<size_t>(ordinal)] = converted(value, fields_[static_cast<size_t>(ordinal)]);
}

void RecordsetPrivate::requireUpdatable() const
{
    if (!updatable())
        throw Error(
            Error::ReadOnly,
            QStringLiteral("No se puede actualizar; la base de datos o el objeto es de sólo lectura."));
}

void RecordsetPrivate::addNew()
{
    requireUpdatable();
    cancelUpdate();
    editMode_ = Recordset::EditMode::Add;
}

void RecordsetPrivate::edit()
{
    requireUpdatable();
    requireCurrent();
    cancelUpdate();
    editMode_ = Recordset::EditMode::Edit;
}

void RecordsetPrivate::update()
{
    database();
    if (editMode_ == Recordset::EditMode::None)
        throw Error(Error::NoEditOpen, QStringLiteral("Update o CancelUpdate sin AddNew o Edit."));
    RowChanges changes;
    for (size_t i = 0; i < edits_.size(); ++i) {
        if (edits_[i])
            changes.emplace_back(static_cast<int>(i), *edits_[i]);
    }
    if (editMode_ == Recordset::EditMode::Add) {
        lastModified_ = insertRow(changes);
    } else {
        requireCurrent();
        std::erase_if(changes,
                      [this](const auto &change) { return currentValue(change.first) == change.second; });
        if (!changes.empty())
            updateRow(changes);
        lastModified_ = bookmark();
    }
    cancelUpdate();
}

void RecordsetPrivate::cancelUpdate()
{
    database();
    if (editMode_ == Recordset::EditMode::None)
        return;
    editMode_ = Recordset::EditMode::None;
    std::fill(edits_.begin(), edits_.end(), std::nullopt);
}

void RecordsetPrivate::deleteRow()
{
    requireUpdatable();
    requireCurrent();
    cancelUpdate();
    removeRow();
}

namespace
{

std::vector<int> columnsOf(const RowChanges &changes)
{
    std::vector<int> columns;
    columns.reserve(changes.size());
    for (const auto &[column, value] : changes)
        columns.push_back(column);
    return columns;
}

/// A primary key identifies its row: none of its columns may be unknown.
void requirePrimaryKey(const Table &table, const RowChanges &changes, bool adding)
{
    for (const IndexDef &index : table.indexes) {
        if (!index.primary || !index.unique)
            continue;
        for (const QString &field : index.fields) {
            const int ordinal = table.ordinal(field);
            const auto given = std::find_if(changes.begin(), changes.end(),
                                            [&](const auto &change) { return change.first == ordinal; });
            const bool missing =
                given == changes.end() ? adding && ordinal != table.counter : given->second.isNull();
            if (missing && table.columns[static_cast<size_t>(ordinal)].type != FieldType::Bit)
                throw Error(
                    Error::NullKey,
                    QStringLiteral("El índice o la clave principal no puede contener un valor Nulo."));
        }
    }
}

} // namespace

qint64 RecordsetPrivate::insertInto(const Table &table, const RowChanges &changes)
{
    requirePrimaryKey(table, changes, true);
    const StatementPtr statement =
        database().statement(database().emitter().insertRow(table, columnsOf(changes)));
    for (size_t i = 0; i < changes.size(); ++i)
        statement->bind(static_cast<int>(i), changes[i].second);
    return database().insert(*statement);
}

void RecordsetPrivate::updateIn(const Table &table, qint64 key, const RowChanges &changes)
{
    requirePrimaryKey(table, changes, false);
    const StatementPtr statement =
        database().statement(database().emitter().updateRow(table, columnsOf(changes)));
    for (size_t i = 0; i < changes.size(); ++i)
        statement->bind(static_cast<int>(i), changes[i].second);
    statement->bind(static_cast<int>(changes.size()), key);
    if (database().write(*statement) == 0)
        throwDeleted();
}

void RecordsetPrivate::deleteFrom(const Table &table, qint64 key)
{
    const StatementPtr statement = database().statement(database().emitter().deleteRow(table));
    statement->bind(0, key);
    if (database().write(*statement) == 0)
        throwDeleted();
}

} // namespace dao
