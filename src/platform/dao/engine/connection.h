#pragma once

#include "platform/dao/database.h"
#include "platform/dao/dialect/binder.h"
#include "platform/dao/engine/catalogue.h"
#include "platform/dao/engine/engine.h"
#include "platform/dao/engine/lru.h"

#include <QSet>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace dao
{

using StatementPtr = std::shared_ptr<EngineStatement>;

/// A text of the dialect as far as it can be prepared before it runs.
struct Prepared {
    std::shared_ptr<const Bound> bound;
    EngineSql sql;
    int generation = 0; ///< of the catalogue
};
using PreparedPtr = std::shared_ptr<const Prepared>;

/// The inside of an open database: its engine, the catalogue, the caches of prepared statements.
class DatabasePrivate
{
public:
    using Opener = std::function<std::unique_ptr<Engine>()>;
    /// `opener` opens the same file once more, should this connection become of no use.
    void attach(std::unique_ptr<Engine> engine, const QString &path, Opener opener = {});
    void detach();
    bool isOpen() const { return engine_ != nullptr; }
    const QString &path() const { return path_; }

    Engine &engine(); ///< throws Error::Closed
    const Emitter &emitter() { return engine().emitter(); }
    Catalogue &catalogue();

    /// Parses, binds and emits a text that is not DDL, or takes it from the cache.
    PreparedPtr prepare(const QString &sql);
    /// The same of a tree.
    PreparedPtr prepare(Statement statement);
    /// The engine's statement for its text, shared by all that run the same.
    StatementPtr statement(const QString &engineSql);
    StatementPtr bound(const EngineSql &sql); ///< with its parameters bound

    /// Run a statement that writes; it counts towards the batch, and failing in one is undone alone.
    qint64 write(EngineStatement &statement);  ///< returns the rows changed
    qint64 insert(EngineStatement &statement); ///< returns the key of the row
    qint64 execute(const QString &sql);
    /// Of this connection and of those that it opens after.
    void setPatience(int ms);
    int patience() const { return patience_; }
    void define(const Statement &statement); ///< runs a statement of DDL; within a batch a step of it
    void widenText(const QString &table, const QString &column, int size);
    void saveQuery(const QString &name, const QString &text);

    void beginBatch(int rows);
    void endBatch();

    /// A number that differs whenever rows may have changed: at once for what this process writes, within
    /// milliseconds for what another one does.
    qint64 changeStamp();
    /// The part of it that this process makes, which costs nothing to read.
    static qint64 ownWrites() { return processWrites_.load(std::memory_order_relaxed); }

    /// Runs what may fail for a catalogue that somebody else has changed, once more after reading it again.
    template <class Work>
    auto withFreshCatalogue(Work &&work)
    {
        try {
            return work();
        } catch (const Error &error) {
            if (!mayBeStale(error) || !catalogue().refresh())
                throw;
        }
        return work();
    }

    QSet<RecordsetPrivate *> &recordsets() { return recordsets_; }

private:
    static bool mayBeStale(const Error &error);
    void commit();
    void revive();
    void beginForBatch();
    qint64 written(EngineStatement &statement, qint64 (EngineStatement::*run)());
    /// One step of the open batch. A failure takes back this step alone, also where it had changed rows
    /// before it failed.
    template <class Work>
    auto inBatch(Work &&work)
    {
        beginForBatch();
        try {
            Savepoint step(engine());
            auto result = work();
            step.keep();
            return result;
        } catch (const Error &error) {
            noteLoss(error);
            throw;
        }
    }
    void noteLoss(const Error &error);
    /// A change of structure is whole or not there, and finds what other stations have changed before.
    void alter(const std::function<void()> &change);

    TablePtr existingTable(const QString &name);
    int existingColumn(const Table &table, const QString &name);
    void createTable(const CreateTable &create);
    void createIndex(const CreateIndex &create);
    void dropIndex(const DropIndex &drop);
    void addColumn(const AddColumn &add);
    void dropColumn(const DropColumn &drop);

    /// Of all connections, so that what one of them writes another one shows at once.
    static inline std::atomic<qint64> processWrites_{0};

    // In this order: statements end before their engine.
    std::unique_ptr<Engine> engine_;
    std::unique_ptr<Catalogue> catalogue_;
    LruCache<StatementPtr> statements_{200};
    LruCache<PreparedPtr> prepared_{400};
    QString path_;
    Opener opener_;
    QSet<RecordsetPrivate *> recordsets_;
    int patience_ = 15000; ///< milliseconds that a station waits for the file
    int batchDepth_ = 0;
    int batchRows_ = 0;
    int rowsInBatch_ = 0;
    std::optional<Error> batchLost_; ///< why the rows of the open batch are gone
    qint64 dataVersion_ = 0;
    qint64 foreignChanges_ = 0;
    qint64 checkedAt_ = 0;
};

} // namespace dao
