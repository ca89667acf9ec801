#include "platform/dao/recordsets/dynaset.h"

#include "platform/dao/dialect/parser.h"

#include <algorithm>

namespace dao
{

namespace
{

constexpr qint64 headRows = 64;
constexpr qint64 firstWindow = 8;
constexpr qint64 largestWindow = 2048;
constexpr qint64 largestJoinWindow = 64;

} // namespace

Dynaset::Dynaset(DatabasePrivate &database, const QString &text, PreparedPtr prepared)
    : ListRecordset(database, Recordset::Kind::Dynaset), text_(text), prepared_(std::move(prepared))
{
    open();
}

void Dynaset::open()
{
    const Bound &bound = *prepared_->bound;
    keys_ = Keyset(bound.tables.size());
    naturalOrder_ = bound.naturalOrder();
    std::vector<FieldDef> fields;
    std::vector<QString> qualifiers;
    for (const OutputColumn &column : bound.columns) {
        fields.push_back(column.field);
        qualifiers.push_back(column.qualifier);
    }
    setFields(std::move(fields), std::move(qualifiers));
    hot_.clear();
    window_.reset({});
    slotOf_.assign(bound.columns.size(), -1);
    rowOf_.clear();
    release();
    added_.clear();
    stamp_ = -1;
    readHead();
    restart();
}

void Dynaset::requery()
{
    prepared_ = database().prepare(text_);
    open();
}

void Dynaset::release()
{
    fetchers_.clear();
    readOn_.reset();
}

void Dynaset::readKeys(const KeyQuery &query, Keyset &keys)
{
    const StatementPtr statement = database().bound(database().emitter().keys(*prepared_->bound, query));
    const StatementRun run(*statement);
    const size_t width = keys.width();
    std::vector<qint64> key(width);
    while (statement->step()) {
        for (size_t i = 0; i < width; ++i) {
            const int column = static_cast<int>(i);
            key[i] = width > 1 && statement->isNull(column) ? Keyset::none : statement->integer(column);
        }
        keys.append(key);
    }
}

void Dynaset::readHead()
{
    keys_.clear();
    database().withFreshCatalogue([&] { readKeys({.limit = headRows}, keys_); });
    complete_ = keys_.count() < headRows;
}

void Dynaset::readAll()
{
    if (complete_)
        return;
    Keyset all(keys_.width());
    readKeys({}, all);
    // The rows that are known keep their places, whatever was added or deleted since.
    bool same = all.count() >= keys_.count() && added_.empty();
    for (qint64 i = 0; same && i < keys_.count(); ++i)
        same = std::ranges::equal(all.at(i), keys_.at(i));
    if (same) {
        keys_ = std::move(all);
    } else {
        Keyset known = keys_;
        for (const Recordset::Bookmark &key : added_)
            known.append(key);
        for (qint64 i = 0; i < all.count(); ++i) {
            if (known.find(all.at(i)) < 0)
                keys_.append(all.at(i));
        }
    }
    appendAdded();
}

void Dynaset::appendAdded()
{
    for (const Recordset::Bookmark &key : added_)
        keys_.append(key);
    added_.clear();
    complete_ = true;
}

void Dynaset::readOn()
{
    if (!readOn_) {
        const EngineSql sql = database().emitter().keys(*prepared_->bound, {.columns = hot_, .beyond = true});
        readOn_ = StatementPtr(database().engine().prepare(sql.text));
        for (size_t i = 0; i < sql.parameters.size(); ++i)
            readOn_->bind(static_cast<int>(i), sql.parameters[i]);
        readOnPlaces_ = static_cast<int>(sql.parameters.size());
    }
    const qint64 first = keys_.count();
    windowSize_ = std::min(std::max(windowSize_ * 2, headRows), largestWindow);
    startWindow(first, 0);
    readOn_->bind(readOnPlaces_, first == 0 ? Keyset::none : keys_.at(first - 1)[0]);
    readOn_->bind(readOnPlaces_ + 1, windowSize_);
    const StatementRun run(*readOn_);
    qint64 read = 0;
    for (; readOn_->step(); ++read) {
        const qint64 key = readOn_->integer(0);
        if (!added_.empty() && std::ranges::find(added_, Recordset::Bookmark{key}) != added_.end())
            continue;
        keys_.append({&key, 1});
        rowOf_.push_back(window_.count());
        window_.append(*readOn_, 1);
    }
    if (read < windowSize_)
        appendAdded();
}

bool Dynaset::reaches(qint64 position)
{
    if (position < keys_.count())
        return true;
    if (!complete_ && naturalOrder_ && position == keys_.count())
        readOn();
    else
        readAll();
    return position < keys_.count();
}

qint64 Dynaset::total()
{
    readAll();
    return keys_.count();
}

qint64 Dynaset::positionOf(std::span<const qint64> key)
{
    if (!complete_ && keys_.find(key) < 0)
        readAll();
    return keys_.find(key);
}

qint64 Dynaset::firstMatch(const QString &criterion, bool backwards, qint64 after, qint64 before)
{
    ExprPtr condition = parseCriterion(criterion);
    Binder(database().catalogue()).bindCriterion(condition, *prepared_->bound);
    const StatementPtr statement = database().bound(
        database().emitter().keys(*prepared_->bound, {.criterion = condition.get(), .reversed = backwards}));
    const StatementRun run(*statement);
    std::vector<qint64> key(keys_.width());
    while (statement->step()) {
        for (size_t i = 0; i < key.size(); ++i) {
            const int column = static_cast<int>(i);
            key[i] = statement->isNull(column) ? Keyset::none : statement->integer(column);
        }
        const qint64 position = positionOf(key);
        if (position > after && position < before)
            return position;
    }
    return -1;
}

Recordset::Bookmark Dynaset::bookmark()
{
    const auto key = keys_.at(current());
    return {key.begin(), key.end()};
}

void Dynaset::setBookmark(const Recordset::Bookmark &bookmark)
{
    const qint64 position = positionOf(bookmark);
    if (position < 0)
        throwNoCurrent();
    goTo(position);
}

basic::Value Dynaset::cell(qint64 position, int ordinal)
{
    if (slotOf_[static_cast<size_t>(ordinal)] < 0)
        makeHot(ordinal);
    const qint64 row = rowOfWindow(position);
    if (row < 0)
        throwDeleted();
    return window_.value(row, slotOf_[static_cast<size_t>(ordinal)]);
}

basic::Value Dynaset::currentValue(int ordinal)
{
    const qint64 inside = position() - windowFirst_;
    const int slot = slotOf_[static_cast<size_t>(ordinal)];
    if (slot >= 0 && standsOnRow() && inside >= 0 && inside < static_cast<qint64>(rowOf_.size())) {
        const bool samePass =
            passPosition_ == position() && slot > passSlot_ && writes_ == DatabasePrivate::ownWrites();
        if (samePass || stamp_ == database().changeStamp()) {
            passPosition_ = position();
            passSlot_ = slot;
            if (const qint64 row = rowOf_[static_cast<size_t>(inside)]; row >= 0)
                return window_.value(row, slot);
        }
    }
    return cell(current(), ordinal);
}

void Dynaset::requireRow(qint64 position)
{
    if (rowOfWindow(position) < 0)
        throwDeleted();
}

void Dynaset::makeHot(int ordinal)
{
    slotOf_[static_cast<size_t>(ordinal)] = static_cast<int>(hot_.size());
    hot_.push_back(ordinal);
    release();
    // The rows that were read have not got this column.
    windowSize_ = rowOf_.empty() ? 0 : std::min(windowSize_, firstWindow);
    rowOf_.clear();
}

qint64 Dynaset::rowOfWindow(qint64 position)
{
    const qint64 inside = position - windowFirst_;
    const bool loaded = inside >= 0 && inside < static_cast<qint64>(rowOf_.size());
    if (!loaded || stamp_ != database().changeStamp())
        loadWindow(position);
    return rowOf_[static_cast<size_t>(position - windowFirst_)];
}

void Dynaset::loadWindow(qint64 position)
{
    const auto loaded = static_cast<qint64>(rowOf_.size());
    const bool forward = loaded > 0 && position == windowFirst_ + loaded;
    const bool backward = loaded > 0 && position == windowFirst_ - 1;
    const qint64 largest = keys_.width() > 1 ? largestJoinWindow : largestWindow;
    windowSize_ = forward || backward ? std::min(windowSize_ * 2, largest) : firstWindow;
    windowSize_ = std::max<qint64>(windowSize_, 1);
    const qint64 first = backward ? std::max<qint64>(position - windowSize_ + 1, 0) : position;
    const qint64 last = std::min(first + windowSize_, keys_.count()) - 1;

    startWindow(first, last - first + 1);
    if (keys_.width() > 1) {
        loadTuples(first, last);
        return;
    }
    const qint64 low = keys_.at(first)[0];
    const qint64 high = keys_.at(last)[0];
    bool dense = high - low >= 0 && high - low <= 2 * (last - first + 1);
    for (qint64 i = first; dense && i < last; ++i)
        dense = keys_.at(i)[0] < keys_.at(i + 1)[0];
    dense ? loadRange(first, last) : loadList(first, last);
}

void Dynaset::startWindow(qint64 first, qint64 rows)
{
    stamp_ = database().changeStamp();
    writes_ = DatabasePrivate::ownWrites();
    passPosition_ = -1;
    windowFirst_ = first;
    rowOf_.assign(static_cast<size_t>(rows), -1);
    if (window_.types().size() == hot_.size()) {
        window_.clear();
        return;
    }
    std::vector<FieldType> types;
    for (int column : hot_)
        types.push_back(prepared_->bound->columns[static_cast<size_t>(column)].field.type);
    window_.reset(std::move(types));
}

EngineStatement &Dynaset::fetchStatement(Fetch fetch, int keys)
{
    for (const Fetcher &fetcher : fetchers_) {
        if (fetcher.fetch == fetch && fetcher.keys == keys) {
            firstPlace_ = fetcher.places;
            return *fetcher.statement;
        }
    }
    const EngineSql sql = database().emitter().rows(*prepared_->bound, hot_, fetch, keys);
    // Computed columns have parameters, whose values must not be shared with another recordset's.
    StatementPtr statement = sql.parameters.empty() ? database().statement(sql.text)
                                                    : StatementPtr(database().engine().prepare(sql.text));
    for (size_t i = 0; i < sql.parameters.size(); ++i)
        statement->bind(static_cast<int>(i), sql.parameters[i]);
    fetchers_.push_back({fetch, keys, std::move(statement), static_cast<int>(sql.parameters.size())});
    firstPlace_ = fetchers_.back().places;
    return *fetchers_.back().statement;
}

void Dynaset::loadRange(qint64 first, qint64 last)
{
    EngineStatement &statement = fetchStatement(Fetch::Range, 0);
    statement.bind(firstPlace_, keys_.at(first)[0]);
    statement.bind(firstPlace_ + 1, keys_.at(last)[0]);
    const StatementRun run(statement);
    qint64 position = first;
    while (statement.step()) {
        const qint64 key = statement.integer(0);
        while (position <= last && keys_.at(position)[0] < key)
            ++position;
        if (position > last || keys_.at(position)[0] != key)
            continue;
        rowOf_[static_cast<size_t>(position - first)] = window_.count();
        window_.append(statement, 1);
    }
}

void Dynaset::loadList(qint64 first, qint64 last)
{
    const qint64 wanted = last - first + 1;
    int places = 1;
    while (places < wanted)
        places *= 8;
    EngineStatement &statement = fetchStatement(Fetch::List, places);
    std::vector<std::pair<qint64, qint64>> positions;
    for (int i = 0; i < places; ++i) {
        const qint64 position = std::min(first + i, last);
        const qint64 key = keys_.at(position)[0];
        statement.bind(firstPlace_ + i, key);
        if (i < wanted)
            positions.emplace_back(key, position);
    }
    std::sort(positions.begin(), positions.end());
    const StatementRun run(statement);
    while (statement.step()) {
        const std::pair<qint64, qint64> key(statement.integer(0), 0);
        const auto it = std::lower_bound(positions.begin(), positions.end(), key);
        rowOf_[static_cast<size_t>(it->second - first)] = window_.count();
        window_.append(statement, 1);
    }
}

void Dynaset::loadTuples(qint64 first, qint64 last)
{
    EngineStatement &statement = fetchStatement(Fetch::Tuple, 0);
    const auto width = static_cast<int>(keys_.width());
    for (qint64 position = first; position <= last; ++position) {
        const auto key = keys_.at(position);
        for (int i = 0; i < width; ++i) {
            const qint64 own = key[static_cast<size_t>(i)];
            own == Keyset::none ? statement.bind(firstPlace_ + i, basic::Value(basic::Null()))
                                : statement.bind(firstPlace_ + i, own);
        }
        const StatementRun run(statement);
        bool whole = statement.step();
        for (int i = 0; whole && i < width; ++i)
            whole = key[static_cast<size_t>(i)] == Keyset::none || !statement.isNull(i);
        if (!whole)
            continue;
        rowOf_[static_cast<size_t>(position - first)] = window_.count();
        window_.append(statement, width);
    }
}

bool Dynaset::updatable() const
{
    return !database().engine().readOnly();
}

size_t Dynaset::tableOf(int ordinal) const
{
    const Bound &bound = *prepared_->bound;
    const Expr &expr = *bound.columns[static_cast<size_t>(ordinal)].expr;
    return static_cast<size_t>(std::find(bound.tables.begin(), bound.tables.end(), expr.source) -
                               bound.tables.begin());
}

int Dynaset::columnOf(int ordinal) const
{
    return prepared_->bound->columns[static_cast<size_t>(ordinal)].expr->column;
}

bool Dynaset::writable(int ordinal) const
{
    const OutputColumn &column = prepared_->bound->columns[static_cast<size_t>(ordinal)];
    return column.expr->kind == ExprKind::Name && column.field.type != FieldType::Counter;
}

Recordset::Bookmark Dynaset::insertRow(const RowChanges &changes)
{
    const auto &tables = prepared_->bound->tables;
    std::vector<RowChanges> byTable(tables.size());
    for (const auto &[ordinal, value] : changes)
        byTable[tableOf(ordinal)].emplace_back(columnOf(ordinal), value);
    Recordset::Bookmark key(tables.size(), Keyset::none);
    for (size_t i = 0; i < tables.size(); ++i) {
        if (i == 0 || !byTable[i].empty())
            key[i] = insertInto(*tables[i]->table, byTable[i]);
    }
    if (complete_)
        keys_.append(key);
    else
        added_.push_back(key);
    return key;
}

void Dynaset::updateRow(const RowChanges &changes)
{
    const qint64 position = current();
    const auto &tables = prepared_->bound->tables;
    std::vector<RowChanges> byTable(tables.size());
    for (const auto &[ordinal, value] : changes)
        byTable[tableOf(ordinal)].emplace_back(columnOf(ordinal), value);
    for (size_t i = 0; i < tables.size(); ++i) {
        if (byTable[i].empty())
            continue;
        const qint64 key = keys_.at(position)[i];
        if (key == Keyset::none)
            throw Error(Error::QueryNotUpdatable,
                        QStringLiteral("No hay registro que actualizar en la tabla '%1'.")
                            .arg(tables[i]->table->name));
        updateIn(*tables[i]->table, key, byTable[i]);
    }
}

void Dynaset::removeRow()
{
    const qint64 position = current();
    const qint64 key = keys_.at(position)[0];
    deleteFrom(*prepared_->bound->tables[0]->table, key);
    keys_.remove(position);
    rowOf_.clear();
    currentRemoved();
}

} // namespace dao
