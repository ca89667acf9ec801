#pragma once

#include "platform/dao/engine/emitter.h"

namespace dao
{

/// Writes one bound tree as a text of the embedded engine.
class SqlWriter
{
public:
    explicit SqlWriter(const Bound &bound) : bound_(bound) { sql_.reserve(512); }

    EngineSql statement();
    EngineSql keys(const KeyQuery &query);
    EngineSql rows(const std::vector<int> &columns, Fetch fetch, int keys);

    /// Of a column in an order: Nulls come first, and backwards last.
    static QStringView direction(bool descending);

private:
    void select(const Select &select, bool inner);
    void member(const Select &select, bool inner);
    void order(const Select &select);
    void from(const Select &select);
    void table(const TableRef &ref);
    void keyOrder(const Select &select, bool reversed);
    void keyOf(const Source &source);
    void keysAndColumns(const std::vector<int> &columns);
    void limit(qint64 rows);
    EngineSql taken();

    void insert(const Insert &insert);
    void update(const Update &update);
    void assigned(const Expr &value, const FieldDef &field);

    void value(const Expr &expr);
    void condition(const Expr &expr);
    void collated(const Expr &expr);
    void column(const Expr &expr);
    void comparison(const Expr &expr);
    void compared(const Expr &operand, const Expr &other);
    void arithmetic(const Expr &expr);
    void like(const Expr &expr);
    void in(const Expr &expr);
    void between(const Expr &expr);
    void call(const Expr &expr);
    void callOperand(const Expr &call, size_t i);
    void operand(const Expr &expr, ExprType as);
    void asText(const Expr &expr);
    void asNumber(const Expr &expr);
    void asDate(const Expr &expr);
    void asCurrency(const Expr &expr);
    void truth(bool value);
    void parameter(const basic::Value &value);
    void place();

    template <class List, class Write>
    void separated(const List &list, QStringView separator, Write &&write);

    const Bound &bound_;
    QString sql_;
    std::vector<basic::Value> parameters_;
    bool sharing_ = false; ///< equal literals are one parameter, so that a grouped expression is recognised
    int places_ = 0;
};

} // namespace dao
