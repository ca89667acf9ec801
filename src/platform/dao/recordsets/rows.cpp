#include "platform/dao/recordsets/rows.h"

#include "platform/dao/dialect/types.h"

#include <cstring>

namespace dao
{

namespace
{

bool isAscii(QByteArrayView text)
{
    const char *p = text.data();
    qsizetype left = text.size();
    quint64 high = 0;
    for (; left >= 8; left -= 8, p += 8) {
        quint64 eight = 0;
        std::memcpy(&eight, p, 8);
        high |= eight;
    }
    for (; left > 0; --left)
        high |= static_cast<quint64>(static_cast<unsigned char>(*p++));
    return (high & 0x8080808080808080u) == 0;
}

} // namespace

void Rows::reset(std::vector<FieldType> types)
{
    types_ = std::move(types);
    wanted_.clear();
    for (FieldType type : types_)
        wanted_.push_back(exprTypeOf(type));
    given_.resize(wanted_.size());
    clear();
}

void Rows::clear()
{
    cells_.clear();
    texts_.clear();
    count_ = 0;
}

void Rows::append(const EngineStatement &row, int firstColumn)
{
    cells_.resize(cells_.size() + wanted_.size());
    auto next = cells_.end() - static_cast<qsizetype>(wanted_.size());
    row.cells(firstColumn, given_);
    for (size_t i = 0; i < wanted_.size(); ++i) {
        const EngineStatement::Cell &given = given_[i];
        const ExprType wanted = wanted_[i];
        Cell &cell = *next++;
        switch (given.content) {
        case EngineStatement::Cell::Null:
            break;
        case EngineStatement::Cell::Text:
            if (wanted != ExprType::Text)
                break;
            cell.content = isAscii(given.text) ? Cell::PlainText : Cell::Text;
            cell.length = static_cast<quint32>(given.text.size());
            cell.offset = static_cast<qint64>(texts_.size());
            texts_.append(given.text.data(), static_cast<size_t>(given.text.size()));
            break;
        case EngineStatement::Cell::Integer:
        case EngineStatement::Cell::Real: {
            // What an expression computes may come in the other form of a number.
            const bool isReal = given.content == EngineStatement::Cell::Real;
            cell.content = Cell::Number;
            if (wanted == ExprType::Double || wanted == ExprType::Date)
                cell.real = isReal ? given.real : static_cast<double>(given.integer);
            else
                cell.integer = isReal ? basic::nearestWhole(given.real) : given.integer;
            break;
        }
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
        return cell.content == Cell::PlainText ? QString::fromLatin1(texts_.data() + cell.offset, cell.length)
                                               : QString::fromUtf8(texts_.data() + cell.offset, cell.length);
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

std::optional<QByteArrayView> Rows::storedText(qint64 row, int column) const
{
    const Cell &cell = cells_[static_cast<size_t>(row) * types_.size() + static_cast<size_t>(column)];
    if (cell.content != Cell::Text && cell.content != Cell::PlainText)
        return std::nullopt;
    return QByteArrayView(texts_.data() + cell.offset, cell.length);
}

qint64 Rows::integer(qint64 row, int column) const
{
    return cells_[static_cast<size_t>(row) * types_.size() + static_cast<size_t>(column)].integer;
}

} // namespace dao
