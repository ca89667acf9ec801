#include "platform/dao/rows.h"

#include "platform/dao/types.h"

namespace dao
{

void Rows::reset(std::vector<FieldType> types)
{
    types_ = std::move(types);
    clear();
}

void Rows::clear()
{
    cells_.clear();
    texts_.resize(0); // keeps the room
    count_ = 0;
}

void Rows::append(const EngineStatement &row, int firstColumn)
{
    for (FieldType type : types_) {
        const int column = firstColumn++;
        Cell &cell = cells_.emplace_back();
        if (row.isNull(column))
            continue;
        cell.content = Cell::Number;
        switch (type) {
        case FieldType::Text:
        case FieldType::Memo: {
            const QByteArrayView text = row.text(column);
            cell.content = Cell::Text;
            cell.length = static_cast<quint32>(text.size());
            cell.offset = texts_.size();
            texts_.append(text);
            break;
        }
        case FieldType::Double:
        case FieldType::Date:
        case FieldType::Time:
            cell.real = row.real(column);
            break;
        default:
            cell.integer = row.integer(column);
        }
    }
    ++count_;
}

basic::Value Rows::value(qint64 row, int column) const
{
    const auto columnAt = static_cast<size_t>(column);
    const Cell &cell = cells_[static_cast<size_t>(row) * types_.size() + columnAt];
    if (cell.content == Cell::Null)
        return basic::Null();
    switch (types_[columnAt]) {
    case FieldType::Text:
    case FieldType::Memo:
        return QString::fromUtf8(texts_.constData() + cell.offset, cell.length);
    case FieldType::Double:
        return cell.real;
    case FieldType::Date:
    case FieldType::Time:
        return basic::Date::fromSerial(cell.real);
    case FieldType::Currency:
        return basic::Currency::fromUnits(cell.integer);
    case FieldType::Bit:
        return cell.integer != 0;
    case FieldType::Counter:
    case FieldType::Long:
    case FieldType::Integer:
        break;
    }
    return cell.integer;
}

qint64 Rows::integer(qint64 row, int column) const
{
    return cells_[static_cast<size_t>(row) * types_.size() + static_cast<size_t>(column)].integer;
}

} // namespace dao
