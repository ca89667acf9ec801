#pragma once

#include "platform/basic/value.h"
#include "platform/dao/dialect/ast.h"
#include "platform/dao/engine/engine.h"
#include "platform/dao/schema.h"

#include <optional>
#include <string>
#include <vector>

namespace dao
{

/// A copy of some rows of a result, kept close together; a value is made of a cell when it is asked for.
class Rows
{
public:
    /// Forgets all rows; those that follow have columns of these types.
    void reset(std::vector<FieldType> types);
    void clear();
    void append(const EngineStatement &row, int firstColumn);
    qint64 count() const { return count_; }
    basic::Value value(qint64 row, int column) const;
    qint64 integer(qint64 row, int column) const; ///< of a key
    /// The bytes of a text as the engine gave them, which the value may not hold whole: files of other
    /// programs have texts that are no UTF-8. Nothing for what is no text.
    std::optional<QByteArrayView> storedText(qint64 row, int column) const;
    const std::vector<FieldType> &types() const { return types_; }

private:
    struct Cell {
        enum Content : quint32 { Null, Number, Text, PlainText } content = Null; ///< PlainText: ASCII alone
        quint32 length = 0;
        union {
            qint64 integer = 0;
            double real;
            qint64 offset;
        };
    };

    std::vector<FieldType> types_;
    std::vector<ExprType> wanted_; ///< what the engine is to give for each
    std::vector<Cell> cells_;
    std::vector<EngineStatement::Cell> given_; ///< room for the row being added
    std::string texts_;
    qint64 count_ = 0;
};

} // namespace dao
