#pragma once

#include "platform/basic/value.h"
#include "platform/dao/error.h"
#include "platform/dao/schema.h"

#include <QStringView>

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

namespace dao
{

class RecordsetPrivate;
class Recordset;

/// One field of the current record: reads as a Value, takes a Value between addNew or edit and update.
class Field
{
public:
    operator basic::Value() const { return value(); }
    basic::Value value() const;
    QString text() const { return value().text(); }
    double number() const { return value().number(); }
    qint64 integer() const { return value().integer(); }
    bool truth() const { return value().truth(); }
    basic::Date date() const { return value().date(); }
    bool isNull() const { return value().isNull(); }
    Field &operator=(const basic::Value &value);
    Field &operator=(const Field &other) { return *this = other.value(); }

private:
    friend class Recordset;
    Field(Recordset &recordset, int ordinal) : recordset_(recordset), ordinal_(ordinal) {}
    Recordset &recordset_;
    int ordinal_;
};

/// Rows of a table or of a query with a current record. A table-type recordset moves in the order of its
/// index and seeks; a dynaset holds the rows that the query found when it was opened and reads each row's
/// values afresh; a snapshot holds the values too and cannot be changed. No statement of the engine stays
/// open between two calls, so a recordset held by a screen never blocks another workstation.
///
/// Reading forward loads only what is visited. Every member throws Error; using a closed recordset gives
/// Error::Closed, and a row that somebody else deleted gives Error::RecordDeleted when it is used.
class Recordset
{
public:
    enum class Kind { Table, Dynaset, Snapshot };
    enum class EditMode { None, Edit, Add };
    /// Identifies a row of one recordset and of its clones.
    using Bookmark = std::vector<qint64>;

    Recordset();
    explicit Recordset(std::unique_ptr<RecordsetPrivate> d);
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;
    ~Recordset();

    Kind kind() const;
    bool isOpen() const;
    void close();

    const std::vector<FieldDef> &fields() const;
    /// Position of a field by name without regard to case, or -1. Of two columns of a join with one name the
    /// first is meant; "Tabla.campo" names either.
    int ordinal(QStringView name) const;
    Field operator[](QStringView name); ///< throws Error::ItemNotFound
    Field operator[](int ordinal);
    basic::Value value(int ordinal) const;
    void setValue(int ordinal, const basic::Value &value);

    bool bof() const;
    bool eof() const;
    /// A table's exact count; of a dynaset or snapshot the rows visited so far, exact after moveLast().
    qint64 recordCount() const;
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();
    void move(qint64 rows);
    qint64 absolutePosition() const; ///< 0-based; -1 without a current record
    void setAbsolutePosition(qint64 position);
    Bookmark bookmark() const;
    void setBookmark(const Bookmark &bookmark);

    void setIndex(QStringView name); ///< table-type only
    QString index() const;
    /// Moves to the first row whose key compares so with the values; `comparison` is "=", ">=", ">", "<=" or
    /// "<".
    void seek(QStringView comparison, const std::vector<basic::Value> &key);
    void seek(QStringView comparison, const basic::Value &key) { seek(comparison, std::vector{key}); }
    bool noMatch() const;

    /// The criterion is a condition of the dialect over the recordset's fields; on no match the position
    /// stays.
    void findFirst(const QString &criterion);
    void findLast(const QString &criterion);
    void findNext(const QString &criterion);
    void findPrevious(const QString &criterion);

    bool updatable() const;
    EditMode editMode() const;
    void addNew();
    void edit();
    /// One edit and update: either all that `changes` sets is written or, when it throws, nothing of it.
    void edit(const std::function<void()> &changes);
    /// Writes the open row; it is on the disk when this returns. After addNew the current record stays where
    /// it was and lastModified() leads to the new row, which a dynaset holds at its end.
    void update();
    void cancelUpdate();
    void deleteRow(); ///< the current record stays on the deleted row until the next move
    Bookmark lastModified() const;

    void requery(); ///< runs the query again and stands on the first row

    /// Random access for grids: reads any row without moving the current record. rowCount() visits all rows.
    qint64 rowCount() const;
    bool hasRow(qint64 row) const; ///< reads no further than this row asks for
    basic::Value valueAt(qint64 row, int ordinal) const;

private:
    std::unique_ptr<RecordsetPrivate> d_;
};

} // namespace dao
