#include "platform/dao/engine/connection.h"

#include "platform/dao/dialect/parser.h"
#include "platform/dao/recordsets/recordsetprivate.h"

#include <chrono>
#include <ctime>

namespace dao
{

namespace
{

/// Steps every few milliseconds, and is read in as many nanoseconds.
qint64 coarseClock()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<qint64>(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

bool isDefinition(const Statement &statement)
{
    return statement.index() > 3;
}

} // namespace

void DatabasePrivate::attach(std::unique_ptr<Engine> engine, const QString &path, Opener opener)
{
    opener_ = std::move(opener);
    engine_ = std::move(engine);
    path_ = path;
    catalogue_ = std::make_unique<Catalogue>(*engine_);
    catalogue_->reload();
    dataVersion_ = engine_->dataVersion();
    checkedAt_ = coarseClock();
}

void DatabasePrivate::detach()
{
    const QSet<RecordsetPrivate *> open = std::exchange(recordsets_, {});
    for (RecordsetPrivate *recordset : open)
        recordset->detach();
    prepared_.clear();
    statements_.clear();
    catalogue_.reset();
    engine_.reset();
    batchDepth_ = 0;
    path_.clear();
}

Engine &DatabasePrivate::engine()
{
    if (!engine_)
        throw Error(Error::Closed, QStringLiteral("La base de datos no está abierta."));
    if (opener_ && engine_->spoiled() && !engine_->inTransaction())
        revive();
    return *engine_;
}

/// One damaged page must not keep the rest of the file from being read.
void DatabasePrivate::revive()
{
    for (RecordsetPrivate *recordset : recordsets_)
        recordset->release();
    prepared_.clear();
    statements_.clear();
    engine_ = opener_();
    catalogue_->setEngine(*engine_);
    dataVersion_ = engine_->dataVersion();
    ++foreignChanges_;
}

Catalogue &DatabasePrivate::catalogue()
{
    engine();
    return *catalogue_;
}

bool DatabasePrivate::mayBeStale(const Error &error)
{
    switch (error.number()) {
    case Error::BadParameters:
    case Error::NotATable:
    case Error::TableNotFound:
    case Error::ItemNotFound:
    case Error::IndexNotFound:
        return true;
    default:
        return false;
    }
}

PreparedPtr DatabasePrivate::prepare(const QString &sql)
{
    engine();
    if (const PreparedPtr *known = prepared_.find(sql);
        known && (*known)->generation == catalogue_->generation())
        return *known;
    return withFreshCatalogue([&] {
        PreparedPtr made = prepare(parseStatement(sql));
        if (!made->bound->timeDependent)
            prepared_.insert(sql, made);
        return made;
    });
}

PreparedPtr DatabasePrivate::prepare(Statement statement)
{
    if (isDefinition(statement))
        throw Error(Error::SyntaxError, QStringLiteral("La instrucción no es una consulta."));
    auto made = std::make_shared<Prepared>();
    made->bound = Binder(catalogue()).bind(std::move(statement));
    made->sql = emitter().statement(*made->bound);
    made->generation = catalogue_->generation();
    return made;
}

StatementPtr DatabasePrivate::statement(const QString &engineSql)
{
    Engine &running = engine();
    if (const StatementPtr *known = statements_.find(engineSql))
        return *known;
    return statements_.insert(engineSql, StatementPtr(running.prepare(engineSql)));
}

StatementPtr DatabasePrivate::bound(const EngineSql &sql)
{
    StatementPtr made = statement(sql.text);
    for (size_t i = 0; i < sql.parameters.size(); ++i)
        made->bind(static_cast<int>(i), sql.parameters[i]);
    return made;
}

void DatabasePrivate::setPatience(int ms)
{
    patience_ = ms;
    if (engine_)
        engine_->setPatience(ms);
}

/// The batch holds the file from its first write on.
void DatabasePrivate::beginForBatch()
{
    if (engine().inTransaction())
        return;
    engine().begin();
    rowsInBatch_ = 0;
}

/// A full disk may take the rows before with it.
void DatabasePrivate::noteLoss(const Error &error)
{
    if (engine_->inTransaction())
        return;
    batchLost_ = error;
    engine_->giveTurn();
}

qint64 DatabasePrivate::written(EngineStatement &statement, qint64 (EngineStatement::*run)())
{
    qint64 result = 0;
    if (batchDepth_ > 0) {
        result = inBatch([&] { return (statement.*run)(); });
        if (++rowsInBatch_ >= batchRows_)
            commit();
    } else {
        const Turn turn(engine());
        result = (statement.*run)();
    }
    processWrites_.fetch_add(1, std::memory_order_relaxed);
    return result;
}

qint64 DatabasePrivate::write(EngineStatement &statement)
{
    return written(statement, &EngineStatement::run);
}

qint64 DatabasePrivate::insert(EngineStatement &statement)
{
    return written(statement, &EngineStatement::insert);
}

qint64 DatabasePrivate::execute(const QString &sql)
{
    engine();
    PreparedPtr prepared;
    if (const PreparedPtr *known = prepared_.find(sql);
        known && (*known)->generation == catalogue_->generation()) {
        prepared = *known;
    } else {
        Statement parsed = parseStatement(sql);
        if (isDefinition(parsed)) {
            define(parsed);
            return 0;
        }
        prepared = prepare(sql);
    }
    if (std::holds_alternative<SelectPtr>(prepared->bound->statement))
        throw Error(Error::SyntaxError, QStringLiteral("No se puede ejecutar una consulta de selección."));
    return withFreshCatalogue([&] { return write(*bound(prepared->sql)); });
}

void DatabasePrivate::beginBatch(int rows)
{
    engine();
    if (batchDepth_++ == 0)
        batchRows_ = std::max(rows, 1);
}

void DatabasePrivate::endBatch()
{
    if (batchDepth_ == 0)
        throw Error(Error::Engine, QStringLiteral("No hay ninguna transacción abierta."));
    if (--batchDepth_ > 0)
        return;
    const std::optional<Error> lost = std::exchange(batchLost_, std::nullopt);
    if (engine().inTransaction())
        commit();
    if (lost)
        throw *lost;
}

/// A commit that fails leaves nothing open: its rows are not stored, and the caller is told.
void DatabasePrivate::commit()
{
    try {
        engine().commit();
    } catch (...) {
        engine().rollback();
        throw;
    }
}

qint64 DatabasePrivate::changeStamp()
{
    const qint64 now = coarseClock();
    if (now != checkedAt_) {
        checkedAt_ = now;
        const qint64 version = engine().dataVersion();
        if (version != dataVersion_)
            ++foreignChanges_;
        dataVersion_ = version;
    }
    return foreignChanges_ + ownWrites();
}

} // namespace dao
