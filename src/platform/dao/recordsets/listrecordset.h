#pragma once

#include "platform/dao/recordsets/recordsetprivate.h"

namespace dao
{

/// A recordset over a list of rows that keeps its order, with a position in it.
class ListRecordset : public RecordsetPrivate
{
public:
    using RecordsetPrivate::RecordsetPrivate;

    bool bof() override;
    bool eof() override;
    qint64 recordCount() override;
    void moveFirst() override;
    void moveLast() override;
    void move(qint64 rows) override;
    qint64 absolutePosition() override;
    void setAbsolutePosition(qint64 position) override;
    bool find(const QString &criterion, Direction direction) override;
    qint64 rowCount() override { return total(); }
    bool hasRow(qint64 row) override { return reaches(row); }
    basic::Value valueAt(qint64 row, int ordinal) override;

protected:
    /// Whether the list has a row at a position; reads on as far as it takes to know.
    virtual bool reaches(qint64 position) = 0;
    virtual qint64 total() = 0;          ///< reads the whole list
    virtual bool isComplete() const = 0; ///< the whole list has been read
    virtual basic::Value cell(qint64 position, int ordinal) = 0;
    virtual void requireRow(qint64 position) = 0; ///< throws RecordDeleted
    /// The rows that meet a condition, in the list's order or backwards, as keys to be placed one by one.
    virtual qint64 firstMatch(const QString &criterion, bool backwards, qint64 after, qint64 before) = 0;

    basic::Value currentValue(int ordinal) override { return cell(current(), ordinal); }
    void requireCurrent() override { requireRow(current()); }
    qint64 current(); ///< throws NoCurrentRecord
    qint64 position() const { return position_; }
    bool standsOnRow() const { return !removed_; }
    /// Stands on the first row, or on none of an empty list.
    void restart();
    void goTo(qint64 position);
    /// The row at the position is gone from the list; the one after it has taken its place.
    void currentRemoved()
    {
        removed_ = true;
        --visited_;
    }

private:
    qint64 position_ = 0;
    qint64 visited_ = 0; ///< rows up to the farthest position
    bool removed_ = false;
};

} // namespace dao
