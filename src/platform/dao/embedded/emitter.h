#pragma once

#include "platform/dao/dialect/binder.h"

#include <vector>

namespace dao
{

/// A text for the engine with the values of its parameters. Places that a caller fills in at each run come
/// after these, in the order in which they were asked for.
struct EngineSql {
    QString text;
    std::vector<basic::Value> parameters;
};

/// Writes bound trees as texts of the engine. Literals become parameters.
class Emitter
{
public:
    /// The whole of a SELECT, INSERT, UPDATE or DELETE.
    static EngineSql statement(const Bound &bound);

    /// The keys of a rowwise query's rows in its order, one column a table. With a criterion only those that
    /// meet it; limit -1 for all.
    struct KeyQuery {
        const Expr *criterion = nullptr;
        bool reversed = false;
        qint64 limit = -1;
        std::vector<int> columns = {}; ///< output columns wanted beside the keys
        /// Only rows entered after the one whose key is given, in this order; a place for the key and one for
        /// the limit. For a query in natural order.
        bool beyond = false;
    };
    static EngineSql keys(const Bound &bound, const KeyQuery &query);
    /// The rows of one table in the order in which they were entered.
    static bool naturalOrder(const Bound &bound);

    /// Output columns of rows known by their keys: key first, then the columns. `Range` of one table takes
    /// places for the first and the last key; `List` takes `keys` places; `Tuple` one a table and gives the
    /// keys of all tables first.
    enum class Fetch { Range, List, Tuple };
    static EngineSql rows(const Bound &bound, const std::vector<int> &columns, Fetch fetch, int keys = 0);

    /// Rows of a table in the order of an index, or of their entry without one: key, columns of the index,
    /// other columns. Those whose first `equal` columns of the index have the values given, whose next one
    /// compares so, and with `key` set only those after (before, backwards) a row's own key. Places for the
    /// values in this order, the limit last.
    struct PageQuery {
        enum class Next { Any, Greater, GreaterEqual, Less, LessEqual, Null, NotNull };
        enum class Key { Any, Beyond, From, Only };
        const IndexDef *index = nullptr;
        int equal = 0;
        quint32 nulls = 0; ///< bit i: the value of column i is Null and has no place
        Next next = Next::Any;
        Key key = Key::Any;
        bool backwards = false;
    };
    static QString page(const Table &table, const std::vector<int> &columns, const PageQuery &query);
    static QString countRows(const Table &table);

    // One row of a table: places for the values in the order of the columns, the key last.
    static QString insertRow(const Table &table, const std::vector<int> &columns);
    static QString updateRow(const Table &table, const std::vector<int> &columns);
    static QString deleteRow(const Table &table);

private:
    explicit Emitter(const Bound &bound) : bound_(bound) {}

    void select(const Select &select, bool inner);
    void member(const Select &select, bool inner);
    void order(const Select &select);
    void from(const Select &select);
    void table(const TableRef &ref);
    void keyOrder(const Select &select, bool reversed);
    void keyOf(const Source &source);

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
    void operand(const Expr &expr, ExprType as);
    void asText(const Expr &expr);
    void asNumber(const Expr &expr);
    void asDate(const Expr &expr);
    void asCurrency(const Expr &expr);
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

/// A name as the engine takes it.
QString engineName(const QString &name);

} // namespace dao
