#include "platform/dao/rows.h"

#include "platform/dao/types.h"

#include <cmath>

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
    texts_.clear();
    count_ = 0;
}

void Rows::append(const EngineStatement &row, int firstColumn)
{
    for (FieldType type : types_) {
        const EngineStatement::Cell given = row.cell(firstColumn++);
        Cell &cell = cells_.emplace_back();
        const ExprType wanted = exprTypeOf(type);
        switch (given.content) {
        case EngineStatement::Cell::Null:
            break;
        case EngineStatement::Cell::Text:
            if (wanted != ExprType::Text)
                break;
            cell.content = Cell::Text;
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
                cell.integer = isReal ? static_cast<qint64>(std::nearbyint(given.real)) : given.integer;
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
        return QString::fromUtf8(texts_.data() + cell.offset, cell.length);
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
