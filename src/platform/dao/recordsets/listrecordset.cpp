#include "platform/dao/recordsets/listrecordset.h"

#include <algorithm>
#include <limits>

namespace dao
{

qint64 ListRecordset::current()
{
    database();
    if (removed_)
        throwDeleted();
    if (position_ < 0 || !reaches(position_))
        throwNoCurrent();
    return position_;
}

void ListRecordset::goTo(qint64 position)
{
    position_ = position;
    removed_ = false;
    if (position >= 0 && reaches(position))
        visited_ = std::max(visited_, position + 1);
}

void ListRecordset::restart()
{
    visited_ = 0;
    goTo(0);
}

bool ListRecordset::bof()
{
    database();
    return !removed_ && (position_ < 0 || !reaches(0));
}

bool ListRecordset::eof()
{
    database();
    if (position_ >= 0 && position_ < visited_)
        return false;
    return !removed_ && !reaches(std::max<qint64>(position_, 0));
}

qint64 ListRecordset::recordCount()
{
    return isComplete() ? total() : visited_;
}

void ListRecordset::moveFirst()
{
    if (!reaches(0))
        throwNoCurrent();
    goTo(0);
}

void ListRecordset::moveLast()
{
    const qint64 rows = total();
    if (rows == 0)
        throwNoCurrent();
    goTo(rows - 1);
}

void ListRecordset::move(qint64 rows)
{
    database();
    if (rows == 0)
        return;
    if (rows == 1 && !removed_ && position_ >= 0 && position_ < visited_) {
        // The step that every walk over the rows takes.
        if (reaches(++position_))
            visited_ = std::max(visited_, position_ + 1);
        return;
    }
    // The row that has taken a removed one's place is already one step on.
    const qint64 target = position_ + rows - (removed_ && rows > 0 ? 1 : 0);
    if (rows > 0) {
        if (!removed_ && !reaches(std::max<qint64>(position_, 0)))
            throwNoCurrent();
        goTo(reaches(target) ? target : total());
        return;
    }
    if (!removed_ && (position_ < 0 || !reaches(0)))
        throwNoCurrent();
    goTo(std::max<qint64>(target, -1));
}

qint64 ListRecordset::absolutePosition()
{
    database();
    return removed_ || position_ < 0 || !reaches(position_) ? -1 : position_;
}

void ListRecordset::setAbsolutePosition(qint64 position)
{
    if (position < 0 || !reaches(position))
        throwNoCurrent();
    goTo(position);
}

bool ListRecordset::find(const QString &criterion, Direction direction)
{
    constexpr qint64 end = std::numeric_limits<qint64>::max();
    database();
    qint64 after = -1;
    qint64 before = end;
    if (direction == Direction::Next)
        after = removed_ ? position_ - 1 : position_;
    else if (direction == Direction::Previous)
        before = position_;
    const bool backwards = direction == Direction::Last || direction == Direction::Previous;
    const qint64 found = firstMatch(criterion, backwards, after, before);
    if (found < 0)
        return false;
    goTo(found);
    return true;
}

basic::Value ListRecordset::valueAt(qint64 row, int ordinal)
{
    database();
    if (row < 0 || !reaches(row))
        throwNoCurrent();
    return cell(row, ordinal);
}

} // namespace dao
