#include "platform/dao/recordset.h"

#include "platform/dao/recordsets/recordsetprivate.h"

namespace dao
{

namespace
{

inline RecordsetPrivate &open(const std::unique_ptr<RecordsetPrivate> &d)
{
    if (!d || !d->isOpen()) [[unlikely]]
        RecordsetPrivate::throwClosed();
    return *d;
}

/// Moving gives a row up that is open for writing.
void closeEdit(const std::unique_ptr<RecordsetPrivate> &d)
{
    if (open(d).editMode() != Recordset::EditMode::None)
        d->cancelUpdate();
}

} // namespace

basic::Value Field::value() const
{
    return recordset_.value(ordinal_);
}

Field &Field::operator=(const basic::Value &value)
{
    recordset_.setValue(ordinal_, value);
    return *this;
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<RecordsetPrivate> d) : d_(std::move(d))
{
}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

Recordset::Kind Recordset::kind() const
{
    return open(d_).kind();
}

bool Recordset::isOpen() const
{
    return d_ && d_->isOpen();
}

void Recordset::close()
{
    d_.reset();
}

const std::vector<FieldDef> &Recordset::fields() const
{
    return open(d_).fields();
}

int Recordset::ordinal(QStringView name) const
{
    return open(d_).ordinal(name);
}

Field Recordset::operator[](QStringView name)
{
    const int found = open(d_).ordinal(name);
    if (found < 0)
        throw Error(Error::ItemNotFound,
                    QStringLiteral("No se encontró el elemento '%1' en esta colección.").arg(name));
    return {*this, found};
}

Field Recordset::operator[](int ordinal)
{
    if (ordinal < 0 || ordinal >= static_cast<int>(fields().size()))
        throw Error(Error::ItemNotFound, QStringLiteral("No se encontró el elemento en esta colección."));
    return {*this, ordinal};
}

basic::Value Recordset::value(int ordinal) const
{
    return open(d_).value(ordinal);
}

void Recordset::setValue(int ordinal, const basic::Value &value)
{
    open(d_).setValue(ordinal, value);
}

bool Recordset::bof() const
{
    return open(d_).bof();
}

bool Recordset::eof() const
{
    return open(d_).eof();
}

qint64 Recordset::recordCount() const
{
    return open(d_).recordCount();
}

void Recordset::moveFirst()
{
    closeEdit(d_);
    d_->moveFirst();
}

void Recordset::moveLast()
{
    closeEdit(d_);
    d_->moveLast();
}

void Recordset::moveNext()
{
    move(1);
}

void Recordset::movePrevious()
{
    move(-1);
}

void Recordset::move(qint64 rows)
{
    closeEdit(d_);
    d_->move(rows);
}

qint64 Recordset::absolutePosition() const
{
    return open(d_).absolutePosition();
}

void Recordset::setAbsolutePosition(qint64 position)
{
    closeEdit(d_);
    d_->setAbsolutePosition(position);
}

Recordset::Bookmark Recordset::bookmark() const
{
    return open(d_).bookmark();
}

void Recordset::setBookmark(const Bookmark &bookmark)
{
    closeEdit(d_);
    d_->setBookmark(bookmark);
}

void Recordset::setIndex(QStringView name)
{
    open(d_).setIndex(name);
}

QString Recordset::index() const
{
    return open(d_).index();
}

void Recordset::seek(QStringView comparison, const std::vector<basic::Value> &key)
{
    closeEdit(d_);
    d_->seek(comparison, key);
}

bool Recordset::noMatch() const
{
    return open(d_).noMatch;
}

void Recordset::findFirst(const QString &criterion)
{
    closeEdit(d_);
    d_->noMatch = !d_->find(criterion, Direction::First);
}

void Recordset::findLast(const QString &criterion)
{
    closeEdit(d_);
    d_->noMatch = !d_->find(criterion, Direction::Last);
}

void Recordset::findNext(const QString &criterion)
{
    closeEdit(d_);
    d_->noMatch = !d_->find(criterion, Direction::Next);
}

void Recordset::findPrevious(const QString &criterion)
{
    closeEdit(d_);
    d_->noMatch = !d_->find(criterion, Direction::Previous);
}

bool Recordset::updatable() const
{
    return open(d_).updatable();
}

Recordset::EditMode Recordset::editMode() const
{
    return open(d_).editMode();
}

void Recordset::addNew()
{
    open(d_).addNew();
}

void Recordset::edit()
{
    open(d_).edit();
}

void Recordset::edit(const std::function<void()> &changes)
{
    edit();
    try {
        changes();
        update();
    } catch (...) {
        cancelUpdate();
        throw;
    }
}

void Recordset::update()
{
    open(d_).update();
}

void Recordset::cancelUpdate()
{
    closeEdit(d_);
}

void Recordset::deleteRow()
{
    open(d_).deleteRow();
}

Recordset::Bookmark Recordset::lastModified() const
{
    return open(d_).lastModified();
}

void Recordset::requery()
{
    closeEdit(d_);
    d_->requery();
}

qint64 Recordset::rowCount() const
{
    return open(d_).rowCount();
}

bool Recordset::hasRow(qint64 row) const
{
    return row >= 0 && open(d_).hasRow(row);
}

basic::Value Recordset::valueAt(qint64 row, int ordinal) const
{
    return open(d_).valueAt(row, ordinal);
}

} // namespace dao
