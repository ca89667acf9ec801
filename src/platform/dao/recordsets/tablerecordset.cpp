#include "platform/dao/recordsets/tablerecordset.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/types.h"

#include <algorithm>

namespace dao
{

namespace
{

constexpr qint64 largestPage = 512;

} // namespace

TableRecordset::TableRecordset(DatabasePrivate &database, const QString &name)
    : RecordsetPrivate(database, Recordset::Kind::Table)
{
    open(name);
}

void TableRecordset::open(const QString &name)
{
    table_ = database().catalogue().table(name);
    if (!table_)
        throw Error(Error::NotATable, QStringLiteral("No se encuentra la tabla de entrada '%1'.").arg(name));
    setFields(table_->columns, std::vector<QString>(table_->columns.size(), table_->name));
    slotOf_.assign(table_->columns.size(), -1);
    hot_.clear();
    resetPage();
    Rows rows = emptyPage();
    readPage({}, {}, 0, pageSize_, rows);
    show(std::move(rows), false);
}

void TableRecordset::requery()
{
    const QString index = this->index();
    database().catalogue().refresh();
    index_ = nullptr;
    open(table_->name);
    if (!index.isEmpty())
        setIndex(index);
}

void TableRecordset::release()
{
    statements_.clear();
}

void TableRecordset::resetPage()
{
    statements_.clear();
    page_ = emptyPage();
    pageRow_ = 0;
    pageSize_ = 1;
    stamp_ = -1;
}

Rows TableRecordset::emptyPage() const
{
    // The key, then the index's columns, then those asked for.
    std::vector<FieldType> types{FieldType::Long};
    if (index_) {
        for (const QString &field : index_->fields)
            types.push_back(table_->columns[static_cast<size_t>(table_->ordinal(field))].type);
    }
    for (int column : hot_)
        types.push_back(table_->columns[static_cast<size_t>(column)].type);
    Rows rows;
    rows.reset(std::move(types));
    return rows;
}

EngineStatement &TableRecordset::pageStatement(const Page &query)
{
    const quint64 shape = static_cast<quint64>(query.nulls) << 32 | static_cast<quint64>(query.equal) << 16 |
                          static_cast<quint64>(query.next) << 8 | static_cast<quint64>(query.key) << 1 |
                          (query.backwards ? 1u : 0u);
    for (const auto &[known, statement] : statements_) {
        if (known == shape)
            return *statement;
    }
    statements_.emplace_back(shape, database().statement(database().emitter().page(*table_, hot_, query)));
    return *statements_.back().second;
}

void TableRecordset::IndexValue::bindTo(EngineStatement &statement, int parameter) const
{
    if (bytes)
        statement.bindText(parameter, *bytes);
    else
        statement.bind(parameter, value);
}

void TableRecordset::readPage(Page query, const IndexValues &values, qint64 key, qint64 limit, Rows &rows)
{
    query.index = index_;
    query.nulls = 0;
    for (int i = 0; i < query.equal; ++i)
        query.nulls |= values[static_cast<size_t>(i)].isNull() ? 1u << i : 0u;
    EngineStatement &statement = pageStatement(query);
    int place = 0;
    for (int i = 0; i < query.equal; ++i) {
        if (!values[static_cast<size_t>(i)].isNull())
            values[static_cast<size_t>(i)].bindTo(statement, place++);
    }
    if (query.next >= Page::Next::Greater && query.next <= Page::Next::LessEqual)
        values[static_cast<size_t>(query.equal)].bindTo(statement, place++);
    if (query.key != Page::Key::Any)
        statement.bind(place++, key);
    statement.bind(place, limit - rows.count());
    const StatementRun run(statement);
    while (statement.step())
        rows.append(statement, 0);
}

void TableRecordset::readFrom(const Anchor &anchor, bool backwards, bool inclusive, qint64 limit, Rows &rows)
{
    const auto width = static_cast<int>(indexWidth());
    readPage({.equal = width, .key = inclusive ? Page::Key::From : Page::Key::Beyond, .backwards = backwards},
             anchor.values, anchor.key, limit, rows);
    // Then the rows that differ in ever earlier columns of the index: each such set lies together in it.
    for (int i = width - 1; i >= 0 && rows.count() < limit; --i) {
        const bool isNull = anchor.values[static_cast<size_t>(i)].isNull();
        if (!backwards) {
            readPage({.equal = i, .next = isNull ? Page::Next::NotNull : Page::Next::Greater}, anchor.values,
                     0, limit, rows);
            continue;
        }
        if (isNull)
            continue;
        readPage({.equal = i, .next = Page::Next::Less, .backwards = true}, anchor.values, 0, limit, rows);
        if (rows.count() < limit)
            readPage({.equal = i, .next = Page::Next::Null, .backwards = true}, anchor.values, 0, limit,
                     rows);
    }
}

TableRecordset::Anchor TableRecordset::anchorOf(const Rows &rows, qint64 row) const
{
    Anchor anchor;
    anchor.key = rows.integer(row, 0);
    for (int column = 1; column <= static_cast<int>(indexWidth()); ++column) {
        const auto bytes = rows.storedText(row, column);
        anchor.values.push_back(
            {rows.value(row, column), bytes ? std::optional(bytes->toByteArray()) : std::nullopt});
    }
    return anchor;
}

bool TableRecordset::show(Rows rows, bool backwards)
{
    page_ = std::move(rows);
    pageRow_ = 0;
    pageBackwards_ = backwards;
    stamp_ = database().changeStamp();
    if (page_.count() == 0) {
        place_ = backwards ? Place::Before : Place::After;
        return false;
    }
    place_ = Place::Row;
    anchor_ = anchorOf(page_, 0);
    return true;
}

bool TableRecordset::bof()
{
    database();
    return place_ == Place::Before || (place_ == Place::After && recordCount() == 0);
}

bool TableRecordset::eof()
{
    database();
    return place_ == Place::After || (place_ == Place::Before && recordCount() == 0);
}

qint64 TableRecordset::recordCount()
{
    const StatementPtr statement = database().statement(database().emitter().countRows(*table_));
    const StatementRun run(*statement);
    return statement->step() ? statement->integer(0) : 0;
}

void TableRecordset::moveFirst()
{
    database();
    pageSize_ = 1;
    Rows rows = emptyPage();
    readPage({}, {}, 0, pageSize_, rows);
    if (!show(std::move(rows), false))
        throwNoCurrent();
}

void TableRecordset::moveLast()
{
    database();
    pageSize_ = 1;
    Rows rows = emptyPage();
    readPage({.backwards = true}, {}, 0, pageSize_, rows);
    if (!show(std::move(rows), true))
        throwNoCurrent();
}

void TableRecordset::step(bool backwards)
{
    if (place_ == Place::Row && pageBackwards_ == backwards && pageRow_ + 1 < page_.count() &&
        stamp_ == database().changeStamp()) {
        ++pageRow_;
        anchor_ = anchorOf(page_, pageRow_);
        return;
    }
    pageSize_ = pageBackwards_ == backwards ? std::min(pageSize_ * 4, largestPage) : 1;
    Rows rows = emptyPage();
    readFrom(anchor_, backwards, false, pageSize_, rows);
    show(std::move(rows), backwards);
}

void TableRecordset::move(qint64 rows)
{
    database();
    for (; rows > 0; --rows) {
        if (place_ == Place::After)
            throwNoCurrent();
        place_ == Place::Before ? moveFirst() : step(false);
        if (place_ == Place::After)
            return;
    }
    for (; rows < 0; ++rows) {
        if (place_ == Place::Before)
            throwNoCurrent();
        place_ == Place::After ? moveLast() : step(true);
        if (place_ == Place::Before)
            return;
    }
}

void TableRecordset::setIndex(QStringView name)
{
    database();
    const IndexDef *index = name.isEmpty() ? nullptr : table_->index(name);
    if (!index && !name.isEmpty()) {
        // Made since by somebody else, or by this program's own upgrade.
        database().catalogue().refresh();
        const TablePtr current = database().catalogue().table(table_->name);
        index = current ? current->index(name) : nullptr;
        if (!index)
            throw Error(Error::IndexNotFound,
                        QStringLiteral("'%1' no es un índice de la tabla '%2'.").arg(name, table_->name));
        table_ = current;
    }
    index_ = index;
    resetPage();
    Rows rows = emptyPage();
    readPage({}, {}, 0, pageSize_, rows);
    show(std::move(rows), false);
}

void TableRecordset::seek(QStringView comparison, const std::vector<basic::Value> &key)
{
    database();
    if (!index_)
        throw Error(Error::NoIndexSet, QStringLiteral("La operación requiere un índice actual."));
    if (key.empty() || key.size() > indexWidth())
        throw Error(Error::TypeMismatch, QStringLiteral("Argumentos no válidos para Seek."));
    noMatch = true;
    IndexValues values;
    for (size_t i = 0; i < key.size(); ++i) {
        FieldDef field =
            table_->columns[static_cast<size_t>(table_->ordinal(index_->fields[static_cast<qsizetype>(i)]))];
        // A key longer than its field or out of its range is merely not there.
        if (field.type == FieldType::Text)
            field.type = FieldType::Memo;
        else if (exprTypeOf(field.type) == ExprType::Integer)
            field.type = FieldType::Double;
        values.push_back({converted(key[i], field)});
    }
    const auto last = static_cast<int>(values.size()) - 1;
    const auto isNull = [&](int i) { return values[static_cast<size_t>(i)].isNull(); };
    pageSize_ = 1;
    Rows rows = emptyPage();
    const auto read = [&](Page query) {
        if (rows.count() == 0)
            readPage(query, values, 0, 1, rows);
    };
    const bool backwards = comparison.startsWith(u'<');
    const bool orEqual = comparison.endsWith(u'=');
    if (comparison == u"=") {
        read({.equal = last + 1});
    } else if (comparison == u">" || comparison == u">=") {
        if (isNull(last))
            read({.equal = last, .next = orEqual ? Page::Next::Any : Page::Next::NotNull});
        else
            read({.equal = last, .next = orEqual ? Page::Next::GreaterEqual : Page::Next::Greater});
        for (int i = last - 1; i >= 0; --i)
            read({.equal = i, .next = isNull(i) ? Page::Next::NotNull : Page::Next::Greater});
    } else if (comparison == u"<" || comparison == u"<=") {
        if (!isNull(last))
            read({.equal = last,
                  .next = orEqual ? Page::Next::LessEqual : Page::Next::Less,
                  .backwards = true});
        if (!isNull(last) || orEqual)
            read({.equal = last, .next = Page::Next::Null, .backwards = true});
        for (int i = last - 1; i >= 0; --i) {
            if (isNull(i))
                continue;
            read({.equal = i, .next = Page::Next::Less, .backwards = true});
            read({.equal = i, .next = Page::Next::Null, .backwards = true});
        }
    } else {
        throw Error(Error::TypeMismatch, QStringLiteral("Argumentos no válidos para Seek."));
    }
    if (rows.count() > 0)
        noMatch = !show(std::move(rows), backwards);
}

bool TableRecordset::find(const QString &, Direction)
{
    throw Error(Error::NotSupported, QStringLiteral("Operación no admitida para este tipo de objeto."));
}

void TableRecordset::makeHot(int ordinal)
{
    slotOf_[static_cast<size_t>(ordinal)] = static_cast<int>(hot_.size());
    hot_.push_back(ordinal);
    statements_.clear();
    stamp_ = -1;
    pageSize_ = 1;
}

bool TableRecordset::refreshRow()
{
    if (stamp_ == database().changeStamp())
        return true;
    // By its key alone: the row may have moved in the index.
    Rows rows = emptyPage();
    readPage({.key = Page::Key::Only}, {}, anchor_.key, 1, rows);
    if (rows.count() == 0)
        return false;
    page_ = std::move(rows);
    pageRow_ = 0;
    stamp_ = database().changeStamp();
    anchor_ = anchorOf(page_, 0);
    return true;
}

void TableRecordset::requireCurrent()
{
    database();
    if (place_ == Place::Removed)
        throwDeleted();
    if (place_ != Place::Row)
        throwNoCurrent();
    if (!refreshRow())
        throwDeleted();
}

basic::Value TableRecordset::currentValue(int ordinal)
{
    if (slotOf_[static_cast<size_t>(ordinal)] < 0)
        makeHot(ordinal);
    requireCurrent();
    return page_.value(pageRow_, static_cast<int>(1 + indexWidth()) + slotOf_[static_cast<size_t>(ordinal)]);
}

Recordset::Bookmark TableRecordset::bookmark()
{
    if (place_ != Place::Row)
        throwNoCurrent();
    return {anchor_.key};
}

void TableRecordset::setBookmark(const Recordset::Bookmark &bookmark)
{
    database();
    Rows rows = emptyPage();
    if (bookmark.size() == 1)
        readPage({.key = Page::Key::Only}, {}, bookmark[0], 1, rows);
    if (rows.count() == 0)
        throwNoCurrent();
    pageSize_ = 1;
    show(std::move(rows), false);
}

bool TableRecordset::updatable() const
{
    return !database().engine().readOnly();
}

bool TableRecordset::writable(int ordinal) const
{
    return ordinal != table_->counter;
}

Recordset::Bookmark TableRecordset::insertRow(const RowChanges &changes)
{
    return {insertInto(*table_, changes)};
}

void TableRecordset::updateRow(const RowChanges &changes)
{
    updateIn(*table_, anchor_.key, changes);
}

void TableRecordset::removeRow()
{
    deleteFrom(*table_, anchor_.key);
    place_ = Place::Removed;
}

const std::vector<qint64> &TableRecordset::listedKeys()
{
    const qint64 stamp = database().changeStamp();
    if (listedStamp_ == stamp)
        return listed_;
    const StatementPtr statement =
        database().statement(database().emitter().page(*table_, {}, {.index = index_, .whole = true}));
    listed_.clear();
    const StatementRun run(*statement);
    while (statement->step())
        listed_.push_back(statement->integer(0));
    listedStamp_ = stamp;
    return listed_;
}

qint64 TableRecordset::absolutePosition()
{
    database();
    if (place_ != Place::Row)
        return -1;
    const auto &keys = listedKeys();
    const auto it = std::find(keys.begin(), keys.end(), anchor_.key);
    return it == keys.end() ? -1 : it - keys.begin();
}

void TableRecordset::setAbsolutePosition(qint64 position)
{
    const auto &keys = listedKeys();
    if (position < 0 || position >= static_cast<qint64>(keys.size()))
        throwNoCurrent();
    setBookmark({keys[static_cast<size_t>(position)]});
}

basic::Value TableRecordset::valueAt(qint64 row, int ordinal)
{
    const auto &keys = listedKeys();
    if (row < 0 || row >= static_cast<qint64>(keys.size()))
        throwNoCurrent();
    if (slotOf_[static_cast<size_t>(ordinal)] < 0)
        makeHot(ordinal);
    Rows rows = emptyPage();
    readPage({.key = Page::Key::Only}, {}, keys[static_cast<size_t>(row)], 1, rows);
    if (rows.count() == 0)
        throwDeleted();
    return rows.value(0, static_cast<int>(1 + indexWidth()) + slotOf_[static_cast<size_t>(ordinal)]);
}

} // namespace dao
