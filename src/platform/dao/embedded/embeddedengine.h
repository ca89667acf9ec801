#pragma once

#include "platform/dao/embedded/embeddedemitter.h"
#include "platform/dao/embedded/turn.h"
#include "platform/dao/engine/engine.h"
#include "platform/dao/error.h"

#include <QElapsedTimer>

struct sqlite3;

namespace dao
{

/// The engine inside the process: one enciphered file, shared through its own locks.
class EmbeddedEngine : public Engine
{
public:
    struct Options {
        OpenOptions as = {};
        bool create = false;
        bool salvage = false; ///< a file that was cut or has pages too many opens too
    };

    /// `key` as rawKey() gives it; empty for a file without a password.
    EmbeddedEngine(const QString &path, const QByteArray &key, const Options &options);
    ~EmbeddedEngine() override;

    const Emitter &emitter() const override { return emitter_; }
    std::unique_ptr<EngineStatement> prepare(const QString &sql) override;
    void takeTurn() override;
    void giveTurn() noexcept override;
    void begin() override;
    void beginRead() override;
    void commit() override;
    void rollback() noexcept override;
    bool inTransaction() const override;
    void setSavepoint() override;
    void releaseSavepoint() override;
    void rollbackToSavepoint() noexcept override;
    EngineCatalogue readCatalogue() override;
    bool reservesName(const QString &name) const override;
    qint64 schemaVersion() override;
    qint64 dataVersion() override;
    void createTable(const QString &name, const std::vector<FieldDef> &columns) override;
    void dropTable(const Table &table) override;
    void createIndex(const Table &table, const IndexDef &index) override;
    void dropIndex(const Table &table, const IndexDef &index) override;
    void addColumn(const Table &table, const FieldDef &column) override;
    void dropColumn(const Table &table, int ordinal) override;
    void changeColumn(const Table &table, const FieldDef &column) override;
    void saveQuery(const QString &name, const QString &text) override;
    Table createScratchTable(const std::vector<FieldDef> &columns) override;
    void dropScratchTable(const Table &table) noexcept override;
    QStringList check(bool whole) override;
    bool readOnly() const override;
    bool spoiled() const override;
    void setPatience(int ms) override { waiting_.patienceMs = ms; }

    /// Runs statements of the engine without results.
    void run(const QByteArray &sql);
    sqlite3 *handle() const { return db_.get(); }

private:
    struct Close {
        void operator()(sqlite3 *db) const;
    };

    static int waitForTheFile(void *waiting, int attempts);
    void rebuild(const Table &table, const std::vector<FieldDef> &columns);
    qint64 number(std::unique_ptr<EngineStatement> &statement, const char16_t *sql);

    /// For another station that was found to hold the file.
    struct Waiting {
        QElapsedTimer since;
        qint64 spentMs = 0; ///< in the queue, for the same work
        int patienceMs = 15000;
    };
    Waiting waiting_;
    EmbeddedEmitter emitter_;
    WriteQueue queue_;
    std::unique_ptr<sqlite3, Close> db_;
    std::unique_ptr<EngineStatement> schemaVersion_, dataVersion_, setSavepoint_, releaseSavepoint_;
    bool enciphered_ = false;
    bool scratch_ = false;
    int scratchTables_ = 0;
};

/// Makes the order of texts and the dialect's functions known to a connection.
void registerDialect(sqlite3 *db);
/// The failure that the connection reports for a result code.
Error engineError(sqlite3 *db, int code);

/// Opens with the password of a connect string, telling a wrong one from a file of another kind.
std::unique_ptr<EmbeddedEngine> openEmbedded(const QString &path, const QString &password,
                                             const EmbeddedEngine::Options &options);

} // namespace dao
