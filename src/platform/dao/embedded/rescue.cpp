#include "platform/dao/embedded/rescue.h"

#include "platform/dao/embedded/key.h"

#include <algorithm>
#include <limits>

namespace dao
{

namespace
{

/// Failed reads of one table after which the rest of its damaged stretch is given up.
constexpr int mostFailedReads = 4000;

/// Leaves the work that was stopped.
struct Stopped {
};

/// Reads what can be read of a damaged file into a new one.
class Rescue
{
public:
    Rescue(const QString &from, const QString &to, const QString &password, Watch &watch)
        : from_(from), password_(password), watch_(watch),
          to_(to, password.isEmpty() ? QByteArray() : rawKey(password, freshSalt()), {.create = true})
    {
        reopen();
    }

    void run()
    {
        const EngineCatalogue catalogue = source_->readCatalogue();
        for (const auto &[name, text] : catalogue.queries)
            to_.saveQuery(name, text);
        for (const Table &table : catalogue.tables) {
            to_.createTable(table.name, table.columns);
            copyTable(table);
            for (const IndexDef &index : table.indexes)
                copyIndex(table, index);
        }
    }

private:
    void reopen()
    {
        source_.reset(); // a connection that has met a damaged page reads no more
        source_ = openEmbedded(from_, password_, {.as = {.readOnly = true}, .salvage = true});
    }

    void copyIndex(const Table &table, IndexDef index)
    {
        if (basic::ignoring({Error::DuplicateKey}, [&] { to_.createIndex(table, index); }))
            return;
        // Better a row too many than one lost: what was unique in a sound file may not be in this one.
        index.unique = false;
        to_.createIndex(table, index);
    }

    qint64 highestKey(const Table &table)
    {
        constexpr qint64 beyondAny = qint64(1) << 40;
        qint64 highest = beyondAny;
        const bool read = basic::ignoring({Error::FileDamaged, Error::Engine}, [&] {
            const auto statement =
                source_->prepare(QStringLiteral("SELECT seq FROM sqlite_sequence WHERE name = ?"));
            statement->bind(0, table.name);
            highest = statement->step() ? statement->integer(0) : 0;
        });
        if (!read)
            reopen();
        return highest;
    }

    void copyTable(const Table &table)
    {
        QStringList names{engineName(table.keyColumn)};
        for (const FieldDef &column : table.columns) {
            if (column.name != table.keyColumn)
                names << engineName(column.name);
        }
        const QString list = names.join(u", ");
        const QString name = engineName(table.name);
        columns_ = static_cast<int>(names.size());
        select_ = QStringLiteral("SELECT %1 FROM %2 WHERE %3 BETWEEN ? AND ? ORDER BY %3")
                      .arg(list, name, names[0]);
        insert_ = to_.prepare(QStringLiteral("INSERT OR IGNORE INTO %1 (%2) VALUES (?%3)")
                                  .arg(name, list, QStringLiteral(",?").repeated(columns_ - 1)));
        const qint64 highest = highestKey(table);
        failures_ = 0;
        to_.begin();
        copyRange(std::numeric_limits<qint64>::min(), 0);
        copyRange(1, highest);
        to_.commit();
        insert_.reset();
        const auto sequence =
            to_.prepare(QStringLiteral("UPDATE sqlite_sequence SET seq = max(seq, ?) WHERE name = ?"));
        sequence->bind(0, highest);
        sequence->bind(1, table.name);
        if (highest < qint64(1) << 40)
            sequence->run();
    }

    /// Copies the rows of a range of keys; on a damaged page what lies before it and behind it, then each
    /// half of the gap between the two.
    void copyRange(qint64 first, qint64 last)
    {
        if (first > last || failures_ > mostFailedReads)
            return;
        const std::optional<qint64> failedAfter = copyRun(first, last, false);
        if (!failedAfter)
            return;
        const qint64 low = std::max(first, *failedAfter + 1);
        const std::optional<qint64> failedBefore = copyRun(low, last, true);
        if (!failedBefore)
            return;
        const qint64 high = std::min(last, *failedBefore - 1);
        if (low >= high)
            return;
        const qint64 middle = low + (high - low) / 2;
        copyRange(low, middle);
        copyRange(middle + 1, high);
    }

    /// The key at which the reading failed, or nothing when it came through.
    std::optional<qint64> copyRun(qint64 first, qint64 last, bool backwards)
    {
        using Limits = std::numeric_limits<qint64>;
        qint64 reached = backwards ? (last == Limits::max() ? last : last + 1)
                                   : (first == Limits::min() ? first : first - 1);
        try {
            const auto select = source_->prepare(backwards ? select_ + QStringLiteral(" DESC") : select_);
            const StatementRun run(*select);
            select->bind(0, first);
            select->bind(1, last);
            while (select->step()) {
                reached = select->integer(0);
                copyRow(*select);
                if (++copied_ % rowsBetweenLooks == 0 && !watch_.goesOn())
                    throw Stopped();
            }
            return {};
        } catch (const Error &) {
            ++failures_;
            reopen();
            return reached;
        }
    }

    void copyRow(const EngineStatement &from)
    {
        using Cell = EngineStatement::Cell;
        cells_.resize(static_cast<size_t>(columns_));
        from.cells(0, cells_);
        for (int i = 0; i < columns_; ++i) {
            const Cell &cell = cells_[static_cast<size_t>(i)];
            switch (cell.content) {
            case Cell::Null:
                insert_->bind(i, basic::Value(basic::Null()));
                break;
            case Cell::Integer:
                insert_->bind(i, cell.integer);
                break;
            case Cell::Real:
                insert_->bind(i, basic::Value(cell.real));
                break;
            case Cell::Text:
                insert_->bindText(i, cell.text);
                break;
            }
        }
        insert_->insert();
    }

    static constexpr qint64 rowsBetweenLooks = 1000;

    QString from_;
    QString password_;
    Watch &watch_;
    EmbeddedEngine to_;
    std::unique_ptr<EmbeddedEngine> source_;
    std::unique_ptr<EngineStatement> insert_;
    std::vector<EngineStatement::Cell> cells_;
    QString select_;
    int columns_ = 0;
    int failures_ = 0;
    qint64 copied_ = 0;
};

} // namespace

bool rescueRows(const QString &from, const QString &to, const QString &password, Watch &watch)
{
    try {
        Rescue(from, to, password, watch).run();
        return true;
    } catch (const Stopped &) {
        return false;
    }
}

} // namespace dao
