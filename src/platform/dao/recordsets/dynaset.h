#pragma once

#include "platform/dao/recordsets/keyset.h"
#include "platform/dao/recordsets/listrecordset.h"
#include "platform/dao/recordsets/rows.h"

#include <QStringView>

namespace dao
{

/// A query's rows held by their keys. The keys beyond a first few are read when somebody goes there; values
/// are read afresh, a window of neighbouring rows at a time and only in the columns asked for so far.
class Dynaset final : public ListRecordset
{
public:
    Dynaset(DatabasePrivate &database, const QString &text, PreparedPtr prepared);

    Recordset::Bookmark bookmark() override;
    void setBookmark(const Recordset::Bookmark &bookmark) override;
    void requery() override;
    bool updatable() const override;

protected:
    bool reaches(qint64 position) override;
    qint64 total() override;
    bool isComplete() const override { return complete_; }
    basic::Value cell(qint64 position, int ordinal) override;
    basic::Value currentValue(int ordinal) override;
    void requireRow(qint64 position) override;
    qint64 firstMatch(const QString &criterion, bool backwards, qint64 after, qint64 before) override;
    Recordset::Bookmark insertRow(const RowChanges &changes) override;
    void updateRow(const RowChanges &changes) override;
    void removeRow() override;
    bool writable(int ordinal) const override;
    void release() override;

private:
    void open();
    void readHead();
    void readAll();
    /// The next keys of a query in natural order, with the values asked for so far: a walk reads the table
    /// once.
    void readOn();
    void appendAdded();
    void readKeys(const KeyQuery &query, Keyset &keys);
    qint64 positionOf(std::span<const qint64> key);

    qint64 rowOfWindow(qint64 position); ///< makes sure that it is loaded; -1 for a deleted row
    void loadWindow(qint64 position);
    void startWindow(qint64 first, qint64 rows);
    void loadRange(qint64 first, qint64 last);
    void loadList(qint64 first, qint64 last);
    void loadTuples(qint64 first, qint64 last);
    void makeHot(int ordinal);
    EngineStatement &fetchStatement(Fetch fetch, int keys);

    size_t tableOf(int ordinal) const;
    int columnOf(int ordinal) const;

    QString text_;
    PreparedPtr prepared_;
    Keyset keys_;
    std::vector<Recordset::Bookmark> added_; ///< rows of its own that come after those of the query
    bool complete_ = false;

    std::vector<int> hot_;    ///< output columns that have been asked for
    std::vector<int> slotOf_; ///< of an output column among the hot ones, or -1
    Rows window_;
    std::vector<qint64> rowOf_; ///< row of the window by position, or -1
    qint64 windowFirst_ = 0;
    qint64 windowSize_ = 0;
    qint64 stamp_ = -1;
    qint64 writes_ = -1;
    // A row is held against changes of others when the first of its fields is read; the fields that follow in
    // the same pass over the row are of the same state.
    qint64 passPosition_ = -1;
    int passSlot_ = -1;
    struct Fetcher {
        Fetch fetch;
        int keys;
        StatementPtr statement;
        int places; ///< parameters before those of the keys
    };
    std::vector<Fetcher> fetchers_;
    StatementPtr readOn_;
    int readOnPlaces_ = 0;
    bool naturalOrder_ = false;
    int firstPlace_ = 0;
};

} // namespace dao
