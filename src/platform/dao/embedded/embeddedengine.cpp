#include "platform/dao/embedded/embeddedengine.h"

#include "platform/dao/embedded/key.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QThread>

#include ENGINE_HEADER

namespace dao
{

namespace
{

/// Set by whoever meets a damaged page on a connection, which then reads nothing more.
constexpr char spoiledMark[] = "dañado";

class EmbeddedStatement final : public EngineStatement
{
public:
    EmbeddedStatement(sqlite3 *db, sqlite3_stmt *statement) : db_(db), statement_(statement) {}
    ~EmbeddedStatement() override { sqlite3_finalize(statement_); }
    EmbeddedStatement(const EmbeddedStatement &) = delete;
    EmbeddedStatement &operator=(const EmbeddedStatement &) = delete;

    void bind(int parameter, const basic::Value &value) override
    {
        using Kind = basic::Value::Kind;
        const int place = parameter + 1;
        switch (value.kind()) {
        case Kind::Empty:
        case Kind::Null:
            sqlite3_bind_null(statement_, place);
            return;
        case Kind::Bit:
        case Kind::Long:
            sqlite3_bind_int64(statement_, place, value.integer());
            return;
        case Kind::Double:
            sqlite3_bind_double(statement_, place, value.number());
            return;
        case Kind::Currency:
            sqlite3_bind_int64(statement_, place, value.currency().units());
            return;
        case Kind::Date:
            sqlite3_bind_double(statement_, place, value.date().serial());
            return;
        case Kind::Text:
            break;
        }
        bindText(parameter, value.as<QString>()->toUtf8());
    }

    void bindText(int parameter, QByteArrayView utf8) override
    {
        const char *text = utf8.isNull() ? "" : utf8.data(); // no address would bind a Null
        sqlite3_bind_text(statement_, parameter + 1, text, static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    }

    void bind(int parameter, qint64 key) override { sqlite3_bind_int64(statement_, parameter + 1, key); }

    bool step() override
    {
        const int code = sqlite3_step(statement_);
        if (code == SQLITE_ROW)
            return true;
        if (code == SQLITE_DONE)
            return false;
        const Error error = engineError(db_, code);
        sqlite3_reset(statement_);
        throw error;
    }

    void reset() override { sqlite3_reset(statement_); }

    qint64 run() override
    {
        const StatementRun whole(*this);
        step();
        return sqlite3_changes64(db_);
    }

    qint64 insert() override
    {
        run();
        return sqlite3_last_insert_rowid(db_);
    }

    bool isNull(int column) const override { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }
    qint64 integer(int column) const override { return sqlite3_column_int64(statement_, column); }
    double real(int column) const override { return sqlite3_column_double(statement_, column); }

    QByteArrayView text(int column) const override
    {
        const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(statement_, column));
        return {bytes, sqlite3_column_bytes(statement_, column)};
    }

    void cells(int firstColumn, std::span<Cell> to) const override
    {
        for (Cell &cell : to) {
            sqlite3_value *value = sqlite3_column_value(statement_, firstColumn++);
            switch (sqlite3_value_type(value)) {
            case SQLITE_INTEGER:
                cell.content = Cell::Integer;
                cell.integer = sqlite3_value_int64(value);
                break;
            case SQLITE_FLOAT:
                cell.content = Cell::Real;
                cell.real = sqlite3_value_double(value);
                break;
            case SQLITE_NULL:
                cell.content = Cell::Null;
                break;
            default:
                cell.content = Cell::Text;
                cell.text = {reinterpret_cast<const char *>(sqlite3_value_text(value)),
                             sqlite3_value_bytes(value)};
            }
        }
    }

private:
    sqlite3 *db_;
    sqlite3_stmt *statement_;
};

/// Failures of the dialect's own functions carry their number in front of the words.
std::optional<Error> ownError(const QString &message)
{
    bool ok = false;
    const int number = message.left(4).toInt(&ok);
    if (!ok || message.size() < 6 || message[4] != u':')
        return {};
    return Error(number, message.mid(5));
}

} // namespace

Error engineError(sqlite3 *db, int code)
{
    const QString message = QString::fromUtf8(sqlite3_errmsg(db));
    const int extended = sqlite3_extended_errcode(db);
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Error::Locked,
                QStringLiteral("No se pudo actualizar; la base de datos está bloqueada por otro puesto.")};
    case SQLITE_FULL:
        return {Error::DiskFull, QStringLiteral("No hay espacio suficiente en el disco.")};
    case SQLITE_READONLY:
        return {Error::ReadOnly,
                QStringLiteral("No se puede actualizar; la base de datos es de sólo lectura.")};
    case SQLITE_CANTOPEN:
        return {Error::ReadOnly, QStringLiteral("No se puede escribir en la carpeta de la base de datos.")};
    case SQLITE_NOTADB:
        return {Error::NotADatabase, QStringLiteral("El archivo no tiene el formato de una base de datos.")};
    case SQLITE_CORRUPT:
    case SQLITE_NOMEM: // what the cipher makes of a page that does not decipher
        sqlite3_set_clientdata(db, spoiledMark, db, nullptr);
        return {Error::FileDamaged, QStringLiteral("El archivo de la base de datos está dañado.")};
    case SQLITE_CONSTRAINT:
        if (extended == SQLITE_CONSTRAINT_UNIQUE || extended == SQLITE_CONSTRAINT_PRIMARYKEY ||
            extended == SQLITE_CONSTRAINT_ROWID)
            return {
                Error::DuplicateKey,
                QStringLiteral("Los cambios no se realizaron porque crearían valores duplicados en un índice "
                               "único o en la clave principal.")};
        break;
    case SQLITE_IOERR:
        return {Error::Engine, QStringLiteral("Error de lectura o escritura en el disco o en la red.")};
    case SQLITE_ERROR:
        if (auto own = ownError(message))
            return *own;
        if (message.startsWith(u"no such"))
            return {Error::NotATable,
                    QStringLiteral("La estructura de la base de datos cambió: %1.").arg(message)};
        break;
    default:
        break;
    }
    return {Error::Engine, QStringLiteral("Error del motor de la base de datos: %1.").arg(message)};
}

void EmbeddedEngine::Close::operator()(sqlite3 *db) const
{
    sqlite3_close_v2(db);
}

EmbeddedEngine::EmbeddedEngine(const QString &path, const QByteArray &key, const Options &options)
    : queue_(path), enciphered_(!key.isEmpty())
{
    const int flags = options.as.readOnly ? SQLITE_OPEN_READONLY
                                          : SQLITE_OPEN_READWRITE | (options.create ? SQLITE_OPEN_CREATE : 0);
    if (!queue_.join(options.as.exclusive, options.as.patienceMs))
        throw Error(Error::Locked, QStringLiteral("La base de datos está en uso por otro puesto."));
    sqlite3 *db = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &db,
                                     flags | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX, nullptr);
    db_.reset(db);
    waiting_.patienceMs = options.as.patienceMs;
    if (code != SQLITE_OK)
        throw Error(options.create ? Error::ReadOnly : Error::FileNotFound,
                    QStringLiteral("No se pudo abrir el archivo '%1'.").arg(QDir::toNativeSeparators(path)));
    sqlite3_busy_handler(db, waitForTheFile, &waiting_);
    // Else a statement is compiled anew whenever a parameter that its plan looked at is bound again.
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_QPSG, 1, nullptr);
    // A wrong password is told by the error alone; the cipher's own log would reach the person's terminal.
    run("PRAGMA cipher_log_level = NONE");
    if (enciphered_)
        sqlite3_key(db, key.constData(), static_cast<int>(key.size()));
    // Before anything is read, else a file shorter than its first page says is refused whole.
    if (options.salvage)
        run("PRAGMA writable_schema = ON");
    registerDialect(db);
    run("PRAGMA cache_size = -65536; PRAGMA foreign_keys = OFF; PRAGMA temp_store = MEMORY");
    if (options.create)
        run("CREATE TABLE \"_consultas\" (nombre TEXT PRIMARY KEY COLLATE ESPANOL, texto TEXT)");
    run("SELECT count(*) FROM sqlite_schema");
    if (options.as.exclusive)
        run("PRAGMA locking_mode = EXCLUSIVE");
    // A journal that is truncated is right on network folders, where a shared memory file is not.
    run("PRAGMA journal_mode = TRUNCATE; PRAGMA synchronous = FULL");
    if (options.as.exclusive && !readOnly())
        run("BEGIN EXCLUSIVE; COMMIT");
}

// The statements that it keeps end before the connection, by the order of its members.
EmbeddedEngine::~EmbeddedEngine() = default;

void EmbeddedEngine::run(const QByteArray &sql)
{
    const int code = sqlite3_exec(db_.get(), sql.constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throw engineError(db_.get(), code);
}

std::unique_ptr<EngineStatement> EmbeddedEngine::prepare(const QString &sql)
{
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt *statement = nullptr;
    const int code = sqlite3_prepare_v3(db_.get(), text.constData(), static_cast<int>(text.size()) + 1,
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (code != SQLITE_OK)
        throw engineError(db_.get(), code);
    return std::make_unique<EmbeddedStatement>(db_.get(), statement);
}

void EmbeddedEngine::begin()
{
    takeTurn();
    try {
        run("BEGIN IMMEDIATE");
    } catch (...) {
        giveTurn();
        throw;
    }
}

void EmbeddedEngine::beginRead()
{
    run("BEGIN");
}

void EmbeddedEngine::commit()
{
    run("COMMIT");
    giveTurn();
}

void EmbeddedEngine::rollback() noexcept
{
    if (inTransaction())
        sqlite3_exec(db_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    giveTurn();
}

void EmbeddedEngine::setSavepoint()
{
    if (!setSavepoint_)
        setSavepoint_ = prepare(QStringLiteral("SAVEPOINT paso"));
    setSavepoint_->run();
}

void EmbeddedEngine::releaseSavepoint()
{
    if (!releaseSavepoint_)
        releaseSavepoint_ = prepare(QStringLiteral("RELEASE paso"));
    releaseSavepoint_->run();
}

void EmbeddedEngine::rollbackToSavepoint() noexcept
{
    if (inTransaction()) // a full disk takes all of it back by itself
        sqlite3_exec(db_.get(), "ROLLBACK TO paso; RELEASE paso", nullptr, nullptr, nullptr);
}

void EmbeddedEngine::takeTurn()
{
    QElapsedTimer queueing;
    queueing.start();
    queue_.enter(waiting_.patienceMs);
    waiting_.spentMs = queueing.elapsed();
}

void EmbeddedEngine::giveTurn() noexcept
{
    waiting_.spentMs = 0;
    queue_.leave();
}

bool EmbeddedEngine::spoiled() const
{
    return sqlite3_get_clientdata(db_.get(), spoiledMark) != nullptr;
}

/// Another station holds the file. Stations that write without pause leave it free for moments only, so the
/// file is asked for often, at irregular times: the engine's own ever longer naps would miss them all.
int EmbeddedEngine::waitForTheFile(void *waiting, int attempts)
{
    auto &own = *static_cast<Waiting *>(waiting);
    if (attempts == 0)
        own.since.start();
    if (own.since.elapsed() + own.spentMs > own.patienceMs)
        return 0;
    QThread::usleep(static_cast<unsigned long>(QRandomGenerator::global()->bounded(300, 3000)));
    return 1;
}

bool EmbeddedEngine::inTransaction() const
{
    return sqlite3_get_autocommit(db_.get()) == 0;
}

bool EmbeddedEngine::reservesName(const QString &name) const
{
    return name.startsWith(u'_') || name.contains(u'|') || name.startsWith(u"sqlite_", Qt::CaseInsensitive);
}

bool EmbeddedEngine::readOnly() const
{
    return sqlite3_db_readonly(db_.get(), "main") == 1;
}

qint64 EmbeddedEngine::number(std::unique_ptr<EngineStatement> &statement, const char16_t *sql)
{
    if (!statement)
        statement = prepare(QString::fromUtf16(sql));
    const StatementRun run(*statement);
    return statement->step() ? statement->integer(0) : 0;
}

qint64 EmbeddedEngine::schemaVersion()
{
    return number(schemaVersion_, u"PRAGMA schema_version");
}

qint64 EmbeddedEngine::dataVersion()
{
    return number(dataVersion_, u"PRAGMA data_version");
}

QStringList EmbeddedEngine::check(bool whole)
{
    QStringList faults;
    for (const char16_t *sql : {u"PRAGMA cipher_integrity_check", u"PRAGMA integrity_check"}) {
        const bool ofPages = sql[7] == u'c'; // only an enciphered page carries its own proof
        if (ofPages ? !enciphered_ : enciphered_ && !whole)
            continue;
        try {
            const auto statement = prepare(QString::fromUtf16(sql));
            const StatementRun run(*statement);
            while (statement->step()) {
                const QString line = QString::fromUtf8(statement->text(0));
                if (line != u"ok")
                    faults << line;
            }
        } catch (const Error &error) {
            faults << error.description();
        }
    }
    return faults;
}

std::unique_ptr<Engine> openEngine(const QString &path, const QString &connect, const OpenOptions &options)
{
    return openEmbedded(path, passwordOf(connect), {.as = options});
}

std::unique_ptr<Engine> createEngine(const QString &path, const QString &connect)
{
    const QString password = passwordOf(connect);
    const QByteArray key = password.isEmpty() ? QByteArray() : rawKey(password, freshSalt());
    return std::make_unique<EmbeddedEngine>(path, key, EmbeddedEngine::Options{.create = true});
}

std::unique_ptr<EmbeddedEngine> openEmbedded(const QString &path, const QString &password,
                                             const EmbeddedEngine::Options &options)
{
    requireDatabaseFile(path, options.salvage);
    const bool plain = isPlainDatabase(path);
    const QByteArray key = plain || password.isEmpty() ? QByteArray() : rawKey(password, saltOf(path));
    try {
        auto engine = std::make_unique<EmbeddedEngine>(path, key, options);
        if (!key.isEmpty() && !options.salvage)
            rememberSalt(path);
        return engine;
    } catch (const Error &error) {
        // A first page that the key does not fit reads as no database at all.
        if (error.number() == Error::NotADatabase && !plain)
            throw Error(Error::WrongPassword, QStringLiteral("No es una contraseña válida."));
        throw;
    }
}

} // namespace dao
