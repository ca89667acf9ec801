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

/// The keys of a rowwise query's rows in its order, one column a table. With a criterion only those that meet
/// it; limit -1 for all.
struct KeyQuery {
    const Expr *criterion = nullptr;
    bool reversed = false;
    qint64 limit = -1;
    std::vector<int> columns = {}; ///< output columns wanted beside the keys
    /// Only rows entered after the one whose key is given, in this order; a place for the key and one for the
    /// limit. For a query in natural order.
    bool beyond = false;
};

/// How rows are known by their keys: `Range` of one table takes places for the first and the last key; `List`
/// takes as many places as there are keys; `Tuple` one a table.
enum class Fetch { Range, List, Tuple };

/// Rows of a table in the order of an index, or of their entry without one: key, columns of the index, other
/// columns. Those whose first `equal` columns of the index have the values given, whose next one compares so,
/// and with `key` set only those after (before, backwards) a row's own key. Places for the values in this
/// order, the limit last.
struct PageQuery {
    enum class Next { Any, Greater, GreaterEqual, Less, LessEqual, Null, NotNull };
    enum class Key { Any, Beyond, From, Only };
    const IndexDef *index = nullptr;
    int equal = 0;
    quint32 nulls = 0; ///< bit i: the value of column i is Null and has no place
    Next next = Next::Any;
    Key key = Key::Any;
    bool backwards = false;
    bool whole = false; ///< all of them: there is no place for a limit
};

/// Writes bound trees and the layer's own requests in the language of one engine, to which it belongs.
/// Literals become parameters. In every order Nulls come before all values, and backwards after them; keys
/// and pages of rows that an order leaves equal come as they were entered.
class Emitter
{
public:
    virtual ~Emitter() = default;

    /// The whole of a SELECT, INSERT, UPDATE or DELETE.
    virtual EngineSql statement(const Bound &bound) const = 0;
    virtual EngineSql keys(const Bound &bound, const KeyQuery &query) const = 0;
    /// The keys of all tables, then output columns, of rows known by their keys.
    virtual EngineSql rows(const Bound &bound, const std::vector<int> &columns, Fetch fetch,
                           int keys = 0) const = 0;
    virtual QString page(const Table &table, const std::vector<int> &columns,
                         const PageQuery &query) const = 0;
    virtual QString countRows(const Table &table) const = 0;

    // One row of a table: places for the values in the order of the columns, the key last.
    virtual QString insertRow(const Table &table, const std::vector<int> &columns) const = 0;
    virtual QString updateRow(const Table &table, const std::vector<int> &columns) const = 0;
    virtual QString deleteRow(const Table &table) const = 0;
};

} // namespace dao
