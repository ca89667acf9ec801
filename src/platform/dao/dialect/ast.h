#pragma once

#include "platform/basic/value.h"
#include "platform/dao/schema.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

/// The tree of a statement of the dialect. The parser makes it; the binder fills in the members that say
/// so (they take no part in comparing trees).
namespace dao
{

struct Source;
struct Select;

enum class ExprKind : quint8 {
    Null,
    Boolean,
    Number,
    Text,
    Date, ///< literals, in `literal`
    Name, ///< a column: qualifier.name
    Star, ///< * or qualifier.*
    Negate,
    Not, ///< one operand
    Arithmetic,
    Compare,
    Logic,
    Like,    ///< two operands and `op`
    Between, ///< operand, low, high
    In,      ///< operand and a list, or operand and `select`
    IsNull,
    Call,     ///< name(operands)
    Subquery, ///< one value of `select`
    Exists,
};

enum class Operator : quint8 {
    None,
    Add,
    Subtract,
    Multiply,
    Divide,
    IntDivide,
    Modulo,
    Power,
    Join,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    And,
    Or,
    Xor,
};

/// What an expression yields, as far as the dialect's rules depend on it. Condition is a truth value that
/// has not been stored; Bit is one that a column holds.
enum class ExprType : quint8 { Null, Condition, Bit, Integer, Double, Currency, Date, Text };

struct Expr;
using ExprPtr = std::unique_ptr<Expr>;

struct Expr {
    ExprKind kind = ExprKind::Null;
    Operator op = Operator::None;
    bool negated = false; ///< NOT LIKE, NOT BETWEEN, NOT IN, IS NOT NULL
    qsizetype position = 0;
    QString qualifier;
    QString name;
    basic::Value literal;
    std::vector<ExprPtr> operands;
    std::unique_ptr<Select> select;

    // Filled in by the binder.
    ExprType type = ExprType::Null;
    const Source *source = nullptr; ///< of a Name
    int column = -1;                ///< in the source's table
    int function = -1;              ///< of a Call, in the table of functions

    bool isLiteral() const { return kind <= ExprKind::Date; }
    ExprPtr clone() const;
    bool operator==(const Expr &other) const;
};

struct SelectItem {
    ExprPtr expr;
    QString alias;
    bool operator==(const SelectItem &other) const;
};

struct OrderItem {
    ExprPtr expr;
    bool descending = false;
    bool operator==(const OrderItem &other) const;
};

enum class JoinKind : quint8 { None, Inner, Left, Right };

/// A table (or saved query) of FROM, or a join of two of these.
struct TableRef {
    JoinKind join = JoinKind::None;
    QString name;
    QString alias;
    qsizetype position = 0;
    std::unique_ptr<TableRef> left, right;
    ExprPtr on;

    const Source *source = nullptr; ///< filled in by the binder: of a table
    bool operator==(const TableRef &other) const;
    std::unique_ptr<TableRef> clone() const;
};

struct Select {
    bool distinct = false;
    qint64 top = -1;
    std::vector<SelectItem> items;
    std::vector<std::unique_ptr<TableRef>> from;
    ExprPtr where;
    std::vector<ExprPtr> groupBy;
    ExprPtr having;
    std::vector<OrderItem> orderBy; ///< of the whole, when there are unions
    std::vector<std::unique_ptr<Select>> unions;
    bool unionAll = false; ///< how this member of a union is joined to the one before it

    std::vector<FieldDef> columns; ///< filled in by the binder
    bool operator==(const Select &other) const;
    std::unique_ptr<Select> clone() const;
};

struct Insert {
    QString table;
    std::vector<QString> columns; ///< none: all of the table
    std::vector<ExprPtr> values;
    std::unique_ptr<Select> select;
    bool operator==(const Insert &other) const;
};

struct Assignment {
    QString column;
    ExprPtr value;
    int ordinal = -1; ///< filled in by the binder
    bool operator==(const Assignment &other) const;
};

struct Update {
    QString table;
    std::vector<Assignment> assignments;
    ExprPtr where;
    bool operator==(const Update &other) const;
};

struct Delete {
    QString table;
    ExprPtr where;
    bool operator==(const Delete &other) const;
};

struct CreateTable {
    QString table;
    std::vector<FieldDef> columns;
    bool operator==(const CreateTable &) const = default;
};

struct DropTable {
    QString table;
    bool operator==(const DropTable &) const = default;
};

struct CreateIndex {
    QString table;
    IndexDef index;
    bool operator==(const CreateIndex &other) const;
};

struct DropIndex {
    QString table;
    QString index;
    bool operator==(const DropIndex &) const = default;
};

struct AddColumn {
    QString table;
    FieldDef column;
    bool operator==(const AddColumn &) const = default;
};

struct DropColumn {
    QString table;
    QString column;
    bool operator==(const DropColumn &) const = default;
};

using SelectPtr = std::unique_ptr<Select>;
using Statement = std::variant<SelectPtr, Insert, Update, Delete, CreateTable, DropTable, CreateIndex,
                               DropIndex, AddColumn, DropColumn>;

/// The statement as a text that parses to the same tree.
QString toText(const Statement &statement);
QString toText(const Select &select);
QString toText(const Expr &expr);
bool sameStatement(const Statement &a, const Statement &b);

} // namespace dao
