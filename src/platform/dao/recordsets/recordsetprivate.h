#pragma once

#include "platform/dao/engine/connection.h"
#include "platform/dao/recordset.h"

#include <optional>

namespace dao
{

/// Values to be written to columns of one table, by ordinal.
using RowChanges = std::vector<std::pair<int, basic::Value>>;

enum class Direction { First, Last, Next, Previous };

/// What the kinds of recordsets share: the fields and the row that is open for writing. The kinds know how
/// to move and where rows come from.
class RecordsetPrivate
{
public:
    RecordsetPrivate(DatabasePrivate &database, Recordset::Kind kind);
    virtual ~RecordsetPrivate();
    RecordsetPrivate(const RecordsetPrivate &) = delete;
    RecordsetPrivate &operator=(const RecordsetPrivate &) = delete;

    /// The database closes: nothing of its engine may be held any longer.
    void detach();
    virtual void release() = 0; ///< gives up all statements of the engine
    bool isOpen() const { return database_ != nullptr; }
    [[noreturn]] static void throwClosed();
    Recordset::Kind kind() const { return kind_; }
    const std::vector<FieldDef> &fields() const { return fields_; }
    int ordinal(QStringView name) const;

    virtual bool bof() = 0;
    virtual bool eof() = 0;
    virtual qint64 recordCount() = 0;
    virtual void moveFirst() = 0;
    virtual void moveLast() = 0;
    virtual void move(qint64 rows) = 0;
    virtual qint64 absolutePosition() = 0;
    virtual void setAbsolutePosition(qint64 position) = 0;
    virtual Recordset::Bookmark bookmark() = 0;
    virtual void setBookmark(const Recordset::Bookmark &bookmark) = 0;
    virtual void setIndex(QStringView name);
    virtual QString index() const { return {}; }
    virtual void seek(QStringView comparison, const std::vector<basic::Value> &key);
    virtual bool find(const QString &criterion, Direction direction) = 0;
    virtual void requery() = 0;
    virtual qint64 rowCount() = 0;
    virtual bool hasRow(qint64 row) { return row < rowCount(); }
    virtual basic::Value valueAt(qint64 row, int ordinal) = 0;
    virtual bool updatable() const = 0;

    basic::Value value(int ordinal);
    void setValue(int ordinal, const basic::Value &value);
    Recordset::EditMode editMode() const { return editMode_; }
    void addNew();
    void edit();
    void update();
    void cancelUpdate();
    void deleteRow();
    const Recordset::Bookmark &lastModified() const { return lastModified_; }
    bool noMatch = false;

protected:
    DatabasePrivate &database() const ///< throws Error::Closed
    {
        if (!database_) [[unlikely]]
            throwClosed();
        return *database_;
    }
    void setFields(std::vector<FieldDef> fields, std::vector<QString> qualifiers);
    [[noreturn]] static void throwNoCurrent();
    [[noreturn]] static void throwDeleted();

    virtual basic::Value currentValue(int ordinal) = 0;
    virtual void requireCurrent() = 0; ///< throws NoCurrentRecord, or RecordDeleted
    /// Writes the row whose given fields have values; returns the bookmark of the new row.
    virtual Recordset::Bookmark insertRow(const RowChanges &changes) = 0;
    virtual void updateRow(const RowChanges &changes) = 0;
    virtual void removeRow() = 0;
    /// A field that cannot be written to: of a COUNTER or of a computed column.
    virtual bool writable(int ordinal) const = 0;

    // One row of one table in one statement.
    qint64 insertInto(const Table &table, const RowChanges &changes);
    void updateIn(const Table &table, qint64 key, const RowChanges &changes);
    void deleteFrom(const Table &table, qint64 key);

private:
    void requireUpdatable() const;
    int lookUp(QStringView name) const;
    static quint32 nameHash(QStringView name);

    DatabasePrivate *database_;
    Recordset::Kind kind_;
    std::vector<FieldDef> fields_;
    std::vector<QString> qualifiers_;
    std::vector<int> buckets_; ///< first field of a hash, then by chain_
    std::vector<int> chain_;
    mutable std::vector<int> following_; ///< the field that was asked for after each one
    mutable int lastAsked_ = 0;
    Recordset::EditMode editMode_ = Recordset::EditMode::None;
    std::vector<std::optional<basic::Value>> edits_;
    Recordset::Bookmark lastModified_;
};

} // namespace dao
