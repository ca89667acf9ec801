#pragma once

#include "platform/dao/recordsets/recordsetprivate.h"
#include "platform/dao/recordsets/rows.h"

namespace dao
{

/// A whole table, walked in the order of an index and sought by its keys. It never holds the keys of the
/// table: it knows where it stands by the values of the index in its row, and reads a page from there.
class TableRecordset final : public RecordsetPrivate
{
public:
    TableRecordset(DatabasePrivate &database, const QString &name);

    bool bof() override;
    bool eof() override;
    qint64 recordCount() override;
    void moveFirst() override;
    void moveLast() override;
    void move(qint64 rows) override;
    qint64 absolutePosition() override;
    void setAbsolutePosition(qint64 position) override;
    Recordset::Bookmark bookmark() override;
    void setBookmark(const Recordset::Bookmark &bookmark) override;
    void setIndex(QStringView name) override;
    QString index() const override { return index_ ? index_->name : QString(); }
    void seek(QStringView comparison, const std::vector<basic::Value> &key) override;
    bool find(const QString &criterion, Direction direction) override;
    void requery() override;
    qint64 rowCount() override { return recordCount(); }
    basic::Value valueAt(qint64 row, int ordinal) override;
    bool updatable() const override;

protected:
    basic::Value currentValue(int ordinal) override;
    void requireCurrent() override;
    Recordset::Bookmark insertRow(const RowChanges &changes) override;
    void updateRow(const RowChanges &changes) override;
    void removeRow() override;
    bool writable(int ordinal) const override;
    void release() override;

private:
    enum class Place { Before, Row, After, Removed };
    using Page = PageQuery;
    /// A value of an index's column; of a row that was read, a text with its bytes as they lie in the file,
    /// since a walk goes on from where it stood only by those.
    struct IndexValue {
        basic::Value value;
        std::optional<QByteArray> bytes = {};

        bool isNull() const { return value.isNull(); }
        void bindTo(EngineStatement &statement, int parameter) const;
    };
    using IndexValues = std::vector<IndexValue>;
    /// Where a row stands in the order: its values of the index and its key.
    struct Anchor {
        IndexValues values;
        qint64 key = 0;
    };

    void open(const QString &name);
    void resetPage();
    size_t indexWidth() const { return index_ ? static_cast<size_t>(index_->fields.size()) : 0; }
    EngineStatement &pageStatement(const Page &query);
    /// Adds rows to `rows` until it has `limit`; the values are those of the index's first columns.
    void readPage(Page query, const IndexValues &values, qint64 key, qint64 limit, Rows &rows);
    /// The rows after or before an anchor; `inclusive` with the anchor's own.
    void readFrom(const Anchor &anchor, bool backwards, bool inclusive, qint64 limit, Rows &rows);
    Rows emptyPage() const;
    Anchor anchorOf(const Rows &rows, qint64 row) const;
    bool show(Rows rows, bool backwards); ///< makes the first of the rows read the current one
    void step(bool backwards);
    bool refreshRow(); ///< reads the current row again if it may have changed; false when it is gone
    void makeHot(int ordinal);
    /// Keys of all rows in the order of the index, for random access by position.
    const std::vector<qint64> &listedKeys();

    TablePtr table_;
    const IndexDef *index_ = nullptr;
    Place place_ = Place::Before;
    Anchor anchor_; ///< of the current row, or of the removed one
    std::vector<int> hot_;
    std::vector<int> slotOf_;
    Rows page_; ///< rows in the direction of `pageBackwards_`; the current one is `pageRow_`
    qint64 pageRow_ = 0;
    qint64 pageSize_ = 1;
    bool pageBackwards_ = false;
    qint64 stamp_ = -1;
    std::vector<std::pair<quint64, StatementPtr>> statements_;
    std::vector<qint64> listed_;
    qint64 listedStamp_ = -1;
};

} // namespace dao
