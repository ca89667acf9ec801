#include "platform/dao/recordsets/snapshot.h"

#include "platform/dao/dialect/parser.h"
#include "platform/dao/dialect/types.h"

#include <numeric>

namespace dao
{

Snapshot::Snapshot(DatabasePrivate &database, Recordset::Kind kind, const QString &text, PreparedPtr prepared)
    : ListRecordset(database, kind), text_(text), prepared_(std::move(prepared))
{
    read();
}

Snapshot::~Snapshot()
{
    Snapshot::release();
}

void Snapshot::release()
{
    if (scratch_ && isOpen() && database().isOpen())
        database().engine().dropScratchTable(*scratch_->tables.front()->table);
    scratch_.reset();
}

void Snapshot::read()
{
    release();
    std::vector<FieldDef> fields;
    std::vector<QString> qualifiers;
    std::vector<FieldType> types;
    for (const OutputColumn &column : prepared_->bound->columns) {
        fields.push_back(column.field);
        qualifiers.push_back(column.qualifier);
        types.push_back(column.field.type);
    }
    setFields(std::move(fields), std::move(qualifiers));
    rows_.reset(std::move(types));
    database().withFreshCatalogue([&] {
        rows_.clear();
        const StatementPtr statement = database().bound(prepared_->sql);
        const StatementRun run(*statement);
        while (statement->step())
            rows_.append(*statement, 0);
    });
    restart();
}

void Snapshot::requery()
{
    prepared_ = database().prepare(text_);
    read();
}

void Snapshot::setBookmark(const Recordset::Bookmark &bookmark)
{
    if (bookmark.size() != 1 || bookmark[0] < 0 || bookmark[0] >= rows_.count())
        throwNoCurrent();
    goTo(bookmark[0]);
}

void Snapshot::makeScratch()
{
    const auto table = std::make_shared<const Table>(database().engine().createScratchTable(fields()));
    auto bound = std::make_shared<Bound>();
    auto source = std::make_unique<Source>();
    source->engineAlias = QStringLiteral("s");
    source->table = table;
    auto select = std::make_unique<Select>();
    select->from.push_back(std::make_unique<TableRef>());
    select->from.back()->source = source.get();
    for (size_t i = 0; i < fields().size(); ++i) {
        auto column = std::make_unique<Expr>();
        column->kind = ExprKind::Name;
        column->source = source.get();
        column->column = static_cast<int>(i);
        column->type = exprTypeOf(fields()[i].type);
        bound->columns.push_back({fields()[i], prepared_->bound->columns[i].qualifier, column.get()});
        select->items.push_back({std::move(column), {}});
    }
    bound->tables.push_back(source.get());
    bound->sources.push_back(std::move(source));
    bound->statement = std::move(select);
    scratch_ = std::move(bound);

    std::vector<int> columns(fields().size());
    std::iota(columns.begin(), columns.end(), 0);
    const auto statement = database().engine().prepare(database().emitter().insertRow(*table, columns));
    for (qint64 row = 0; row < rows_.count(); ++row) {
        for (int column : columns)
            statement->bind(column, rows_.value(row, column));
        statement->insert();
    }
}

qint64 Snapshot::firstMatch(const QString &criterion, bool backwards, qint64 after, qint64 before)
{
    ExprPtr condition = parseCriterion(criterion);
    if (!scratch_)
        makeScratch();
    Binder(database().catalogue()).bindCriterion(condition, *scratch_);
    const EngineSql sql =
        database().emitter().keys(*scratch_, {.criterion = condition.get(), .reversed = backwards});
    const auto statement = database().engine().prepare(sql.text);
    for (size_t i = 0; i < sql.parameters.size(); ++i)
        statement->bind(static_cast<int>(i), sql.parameters[i]);
    while (statement->step()) {
        const qint64 position = statement->integer(0) - 1;
        if (position > after && position < before)
            return position;
    }
    return -1;
}

} // namespace dao
