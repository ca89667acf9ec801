#include "platform/dao/database.h"

#include "platform/basic/files.h"
#include "platform/dao/embedded/embeddedengine.h"
#include "platform/dao/embedded/firstpage.h"
#include "platform/dao/embedded/key.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include ENGINE_HEADER

/// Work on a closed file as a whole. Both operations write a new file under another name first, so that a
/// failure midway leaves what there was.
namespace dao
{

namespace
{

/// Failed reads of one table after which the rest of its damaged stretch is given up.
constexpr int mostFailedReads = 4000;

QString quoted(QByteArray text)
{
    return u'\'' + QString::fromUtf8(text.replace('\'', "''")) + u'\'';
}

QString journalOf(const QString &path)
{
    return path + QStringLiteral("-journal");
}

/// Asks now and then whether the work goes on, by how much of the new file there is.
class Watch
{
public:
    Watch(const FileProgress &progress, const QString &source, QString fresh)
        : progress_(progress), fresh_(std::move(fresh)), total_(QFileInfo(source).size())
    {
    }

    bool goesOn()
    {
        if (progress_ && !stopped_)
            stopped_ = !progress_(std::min(QFileInfo(fresh_).size(), total_), total_);
        return !stopped_;
    }
    bool stopped() const { return stopped_; }
    /// Of the statements of a connection as well.
    void follow(EmbeddedEngine &engine)
    {
        constexpr int instructions = 1'000'000;
        const auto ask = [](void *own) { return static_cast<Watch *>(own)->goesOn() ? 0 : 1; };
        sqlite3_progress_handler(engine.handle(), instructions, ask, this);
    }

private:
    const FileProgress &progress_;
    QString fresh_;
    qint64 total_;
    bool stopped_ = false;
};

/// Leaves the work that was stopped.
struct Stopped {
};

/// A file that is being written; gone again unless it was kept.
class Unfinished
{
public:
    explicit Unfinished(QString path) : path_(std::move(path)) { clear(); }
    ~Unfinished() { clear(); }
    Unfinished(const Unfinished &) = delete;
    Unfinished &operator=(const Unfinished &) = delete;
    const QString &path() const { return path_; }
    void keepAs(const QString &name) const
    {
        // A journal that was left of another file of this name must not be played back into this one.
        basic::removeFile(journalOf(name));
        basic::replaceFile(path_, name);
    }

private:
    void clear() const
    {
        for (const QString &file : {path_, journalOf(path_), queueFile(path_)})
            QFile::remove(file);
    }

    QString path_;
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

/// The pages that describe the tables can be read.
bool readsCatalogue(const QString &path, const QString &password)
{
    return basic::ignoring(
        {Error::FileDamaged, Error::WrongPassword, Error::NotADatabase, Error::NotATable, Error::Engine},
        [&] { openEmbedded(path, password, {.as = {.readOnly = true}, .salvage = true})->readCatalogue(); });
}

} // namespace

bool compactDatabase(const QString &source, const QString &destination, const QString &destinationLocale,
                     const QString &sourceConnect, const FileProgress &progress)
{
    if (QFile::exists(destination))
        throw Error(Error::FileExists,
                    QStringLiteral("El archivo '%1' ya existe.").arg(QDir::toNativeSeparators(destination)));
    const QString password = passwordOf(namesPassword(destinationLocale) ? destinationLocale : sourceConnect);
    requireDatabaseFile(source);
    const Alone alone(source);
    const Unfinished fresh(destination + QStringLiteral(".tmp"));
    Watch watch(progress, source, fresh.path());
    {
        const auto engine = openEmbedded(source, passwordOf(sourceConnect), {});
        const QByteArray key = password.isEmpty() ? QByteArray() : rawKey(password, freshSalt());
        watch.follow(*engine);
        // The connection may not make files, but fills an empty one.
        if (QFile empty(fresh.path()); !empty.open(QIODevice::WriteOnly))
            throw Error(Error::ReadOnly, QStringLiteral("No se pudo crear el archivo '%1'.")
                                             .arg(QDir::toNativeSeparators(destination)));
        const QString attach =
            QStringLiteral("ATTACH %1 AS destino KEY %2")
                .arg(quoted(QFile::encodeName(fresh.path())),
                     key.isEmpty() ? QStringLiteral("''") : u'"' + QString::fromLatin1(key) + u'"');
        engine->run(attach.toUtf8());
        // A file that is nothing until it is whole needs no journal, and reaches the disk before it gets its name.
        engine->run("PRAGMA destino.journal_mode = OFF; PRAGMA destino.synchronous = OFF");
        try {
            engine->run("BEGIN; SELECT sqlcipher_export('destino'); COMMIT; DETACH destino");
        } catch (const Error &) {
            if (watch.stopped())
                return false;
            throw;
        }
    }
    fresh.keepAs(destination);
    return true;
}

bool repairDatabase(const QString &path, const QString &connect, const FileProgress &progress)
{
    const QString password = passwordOf(connect);
    const Alone alone(path);
    const Unfinished fresh(path + QStringLiteral(".tmp"));
    const Unfinished headed(path + QStringLiteral(".cabeza"));
    const bool plain = isPlainDatabase(path);
    const bool catalogued = readsCatalogue(path, password);
    if (!catalogued && !plain)
        copyWithNewFirstPage(path, headed.path(), password);
    Watch watch(progress, path, fresh.path());
    try {
        Rescue rescue(catalogued || plain ? path : headed.path(), fresh.path(), plain ? QString() : password,
                      watch);
        rescue.run();
    } catch (const Stopped &) {
        return false;
    }
    QString aside = path + QStringLiteral(".dañada");
    for (int i = 2; QFile::exists(aside); ++i)
        aside = path + QStringLiteral(".dañada%1").arg(i);
    replaceDatabase(path, fresh.path(), aside);
    return true;
}

void replaceDatabase(const QString &path, const QString &fresh, const QString &aside)
{
    basic::syncFile(fresh);
    basic::removeFile(journalOf(aside));
    if (QFile::exists(path))
        basic::keepUnderAnotherName(path, aside);
    // The journal goes before the file is replaced: it must never be played back into the new one.
    if (QFileInfo(journalOf(path)).size() > 0)
        basic::replaceFile(journalOf(path), journalOf(aside));
    else
        basic::removeFile(journalOf(path));
    basic::replaceFile(fresh, path);
}

} // namespace dao
