#pragma once

#include "platform/dao/recordset.h"
#include "platform/dao/schema.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace dao
{

class DatabasePrivate;

/// One open connection to a practice's database file. Statements are texts of the dialect (README of this
/// folder); several processes may hold the same file open, writers wait for one another.
class Database
{
public:
    Database();
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Opens an existing file. `connect` is a connect string with the password: ";PWD=..." in any case, or
    /// "PWD=...;". Throws Error: FileNotFound, WrongPassword, NotADatabase, FileDamaged, Locked.
    void open(const QString &path, bool exclusive, bool readOnly, const QString &connect);
    /// Makes an empty database file; throws when the file exists.
    void create(const QString &path, const QString &connect);
    bool isOpen() const;
    void close(); ///< open recordsets over it become closed
    QString path() const;

    /// A table's name gives a table-type recordset unless a kind is asked for; a SELECT or the name of a
    /// saved query gives a dynaset.
    Recordset openRecordset(const QString &source);
    Recordset openRecordset(const QString &source, Recordset::Kind kind);

    /// Runs one DDL or action statement; throws Error. Returns the rows affected.
    qint64 execute(const QString &sql);

    /// How long a station that finds the file held by another waits for it before it fails with Locked.
    void setPatience(int ms);

    /// Makes a column of texts hold longer ones; its values stay. One that holds as much already stays as it
    /// is.
    void widenText(const QString &table, const QString &column, int size);

    QStringList tableNames() const;      ///< in Spanish order, without the engine's own
    TableDef tableDef(QStringView name); ///< throws Error::ItemNotFound
    void createQuery(const QString &name,
                     const QString &select); ///< a saved query; replaces one of that name
    QStringList queryNames() const;

    /// Batches for long jobs: between the two, writes share commits; every `batchRows` writes one commit is
    /// made, and what was committed stands if the job stops midway. Nesting is counted.
    void beginTrans(int batchRows = 1000);
    void commitTrans();

    /// Runs a loop that reads many rows under one lock of the file instead of one a row: it sees the file as
    /// it is at its start, and other stations write after it. It must not write, nor wait for a person.
    void readTogether(const std::function<void()> &loop);

    enum class Check { Pages, Whole };
    /// The open file's pages are as the program wrote them and, whole, its rows and indexes agree: an empty
    /// list; otherwise what is wrong, in words. The pages of a copy say all there is to say of it, in a tenth
    /// of the time.
    QStringList check(Check depth = Check::Whole);

    DatabasePrivate &d() { return *d_; }

private:
    std::unique_ptr<DatabasePrivate> d_;
};

/// Several writes as one: they reach the disk together, at commit(). A write that fails inside is undone
/// alone; what was written before it stays, also when the batch is left by an exception. Batches nest: the
/// outermost one commits.
class Batch
{
public:
    /// One stroke for the rows of one thing recorded, or a commit every thousand rows for a long job, so that
    /// other stations are let in.
    enum Kind { Stroke, Long };
    explicit Batch(Database &database, Kind kind = Stroke);
    ~Batch();
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    void commit(); ///< throws Error

private:
    Database &database_;
    bool open_ = true;
};

/// While one lives this station has a closed database file alone: no other has it open or can open it. Its
/// own connections open it as before. Throws Error::Locked when another one, or this one, has it open.
class Alone
{
public:
    explicit Alone(const QString &databaseFile);
    ~Alone();
    Alone(const Alone &) = delete;
    Alone &operator=(const Alone &) = delete;

private:
    class Lock;
    std::unique_ptr<Lock> lock_;
};

/// Told now and then how far work on a whole file is, in bytes; false stops the work.
using FileProgress = std::function<bool(qint64 done, qint64 total)>;

/// Copies a closed database into a new file without its free space, under the password of
/// `destinationLocale` (";LANGID=...;pwd=...") when it names one, else the source's. False when it was
/// stopped. Throws Error, Locked when another station has the database open.
bool compactDatabase(const QString &source, const QString &destination, const QString &destinationLocale,
                     const QString &sourceConnect, const FileProgress &progress = {});

/// Mends a closed database in place: rows of damaged pages are lost, all others are kept, and the damaged
/// file is left beside it as "<name>.dañada". False when it was stopped. Throws Error when nothing can be
/// read, Locked when another station has the database open.
bool repairDatabase(const QString &path, const QString &connect, const FileProgress &progress = {});

/// Puts a whole file in the place of a closed database in one stroke; what stood there stays under the name
/// `aside`, with its journal. Throws basic::Error.
void replaceDatabase(const QString &path, const QString &fresh, const QString &aside);

/// The prepared form of a statement for tests and tools: what the engine runs for a text of the dialect.
struct Translation {
    QString engineSql;
    std::vector<basic::Value> parameters;
    std::vector<FieldDef> columns;
};
Translation translate(Database &database, const QString &sql);

} // namespace dao
