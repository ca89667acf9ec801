#pragma once

#include "platform/basic/value.h"
#include "platform/dao/engine/catalogue.h"
#include "platform/dao/engine/emitter.h"
#include "platform/dao/schema.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace dao
{

/// A statement that the engine has prepared: bind, step over its rows, reset. Ordinals are 0-based. A value
/// is bound as columns of its kind store it: Currency in ten-thousandths, dates as serials, true as -1.
class EngineStatement
{
public:
    /// A value of the current row in the form in which it is stored.
    struct Cell {
        enum Content { Null, Integer, Real, Text } content = Null;
        qint64 integer = 0;
        double real = 0;
        QByteArrayView text; ///< until the next step
    };

    virtual ~EngineStatement() = default;
    virtual void bind(int parameter, const basic::Value &value) = 0;
    virtual void bind(int parameter, qint64 key) = 0;
    virtual void bindText(int parameter, QByteArrayView utf8) = 0; ///< byte for byte
    virtual bool step() = 0;                                       ///< false after the last row; throws Error
    virtual void reset() = 0;
    virtual qint64 run() = 0;    ///< of what changes rows, from beginning to end: how many
    virtual qint64 insert() = 0; ///< of what adds one row: its key
    virtual bool isNull(int column) const = 0;
    virtual qint64 integer(int column) const = 0;
    virtual double real(int column) const = 0;
    virtual QByteArrayView text(int column) const = 0; ///< UTF-8, until the next step
    /// As many columns of the current row as there is room for, from the first one given on.
    virtual void cells(int firstColumn, std::span<Cell> to) const = 0;
};

/// Resets a statement on leaving the scope, so that none stays open between two calls.
class StatementRun
{
public:
    explicit StatementRun(EngineStatement &statement) : statement_(statement) {}
    ~StatementRun() { statement_.reset(); }
    StatementRun(const StatementRun &) = delete;
    StatementRun &operator=(const StatementRun &) = delete;

private:
    EngineStatement &statement_;
};

struct EngineCatalogue {
    std::vector<Table> tables;
    std::vector<std::pair<QString, QString>> queries; ///< name and text
};

/// What the layer asks of a database engine.
class Engine
{
public:
    virtual ~Engine() = default;

    virtual const Emitter &emitter() const = 0; ///< of the texts that it prepares
    virtual std::unique_ptr<EngineStatement> prepare(const QString &sql) = 0;

    /// Waits for this station's turn to write, and gives it on. A transaction that begins takes a turn by
    /// itself until it ends; what writes outside one is put between the two. They do not nest.
    virtual void takeTurn() = 0;
    virtual void giveTurn() noexcept = 0;

    virtual void begin() = 0;     ///< a transaction that may write from its first statement on
    virtual void beginRead() = 0; ///< a transaction that holds the file as it is at its first read
    virtual void commit() = 0;
    virtual void rollback() noexcept = 0;
    virtual bool inTransaction() const = 0;
    /// A place in an open transaction to which what follows can be taken back alone. They do not nest.
    virtual void setSavepoint() = 0;
    virtual void releaseSavepoint() = 0;
    virtual void rollbackToSavepoint() noexcept = 0;

    virtual EngineCatalogue readCatalogue() = 0;
    virtual bool reservesName(const QString &name) const = 0; ///< of a table, column or index: it is its own
    virtual qint64 schemaVersion() = 0;
    virtual qint64 dataVersion() = 0; ///< differs when another connection wrote

    // Changes of structure run in a transaction that the caller has begun.
    virtual void createTable(const QString &name, const std::vector<FieldDef> &columns) = 0;
    virtual void dropTable(const Table &table) = 0;
    virtual void createIndex(const Table &table, const IndexDef &index) = 0;
    virtual void dropIndex(const Table &table, const IndexDef &index) = 0;
    virtual void addColumn(const Table &table, const FieldDef &column) = 0;
    virtual void dropColumn(const Table &table, int ordinal) = 0;
    /// Gives a column another definition of the same name; its values stay.
    virtual void changeColumn(const Table &table, const FieldDef &column) = 0;
    virtual void saveQuery(const QString &name, const QString &text) = 0;
    /// A table in memory that this connection alone sees, and that dies with it. Its rows have the keys 1, 2
    /// and so on.
    virtual Table createScratchTable(const std::vector<FieldDef> &columns) = 0;
    virtual void dropScratchTable(const Table &table) noexcept = 0;

    virtual QStringList check(bool whole) = 0;
    virtual bool readOnly() const = 0;
    /// A damaged page was met, after which this connection reads nothing more, sound pages included.
    virtual bool spoiled() const = 0;
    /// How long a station that finds the file held waits for it, in milliseconds.
    virtual void setPatience(int ms) = 0;
};

/// A station's turn to write, until the end of the scope.
class Turn
{
public:
    explicit Turn(Engine &engine) : engine_(engine) { engine_.takeTurn(); }
    ~Turn() { engine_.giveTurn(); }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;

private:
    Engine &engine_;
};

/// What follows it in the transaction is taken back at the end of the scope, unless it was kept.
class Savepoint
{
public:
    explicit Savepoint(Engine &engine) : engine_(engine) { engine_.setSavepoint(); }
    ~Savepoint()
    {
        if (!kept_)
            engine_.rollbackToSavepoint();
    }
    Savepoint(const Savepoint &) = delete;
    Savepoint &operator=(const Savepoint &) = delete;

    void keep()
    {
        engine_.releaseSavepoint();
        kept_ = true;
    }

private:
    Engine &engine_;
    bool kept_ = false;
};

struct OpenOptions {
    bool exclusive = false;
    bool readOnly = false;
    int patienceMs = 15000;
};
/// Opens an existing file, or makes a new one, with the engine that this program is built with. `connect` is
/// a connect string with the password. Throw Error.
std::unique_ptr<Engine> openEngine(const QString &path, const QString &connect, const OpenOptions &options);
std::unique_ptr<Engine> createEngine(const QString &path, const QString &connect);

} // namespace dao
