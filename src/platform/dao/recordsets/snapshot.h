#pragma once

#include "platform/dao/recordsets/listrecordset.h"
#include "platform/dao/recordsets/rows.h"

namespace dao
{

/// The rows of a query with their values as they were when it ran; read-only. What groups or unites rows is
/// one of these whatever kind was asked for.
class Snapshot final : public ListRecordset
{
public:
    Snapshot(DatabasePrivate &database, Recordset::Kind kind, const QString &text, PreparedPtr prepared);
    ~Snapshot() override;

    Recordset::Bookmark bookmark() override { return {current()}; }
    void setBookmark(const Recordset::Bookmark &bookmark) override;
    void requery() override;
    bool updatable() const override { return false; }

protected:
    bool reaches(qint64 position) override { return position < rows_.count(); }
    qint64 total() override { return rows_.count(); }
    bool isComplete() const override { return true; }
    basic::Value cell(qint64 position, int ordinal) override { return rows_.value(position, ordinal); }
    void requireRow(qint64) override {}
    qint64 firstMatch(const QString &criterion, bool backwards, qint64 after, qint64 before) override;
    Recordset::Bookmark insertRow(const RowChanges &) override { return {}; }
    void updateRow(const RowChanges &) override {}
    void removeRow() override {}
    bool writable(int) const override { return false; }
    void release() override;

private:
    void read();
    void makeScratch();

    QString text_;
    PreparedPtr prepared_;
    Rows rows_;
    std::shared_ptr<Bound> scratch_; ///< a query over a copy in the engine, for finding rows
};

} // namespace dao
