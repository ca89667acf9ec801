#pragma once

#include "platform/dao/dialect/ast.h"
#include "platform/dao/engine/catalogue.h"

#include <memory>
#include <vector>

namespace dao
{

/// One member of a FROM: a table, a saved query that runs by itself, or one that was merged into the query
/// that names it.
struct Source {
    QString alias;       ///< what the statement calls it
    QString engineAlias; ///< what the emitter calls it
    TablePtr table;
    SelectPtr query;
    std::vector<std::pair<QString, ExprPtr>> merged; ///< a merged query's columns
    bool nullable = false;                           ///< an outer join may leave it without a row

    bool isMerged() const { return !table && !query; }
};

/// A column that a query shows: its definition and where it comes from.
struct OutputColumn {
    FieldDef field;
    QString qualifier; ///< the alias of the source, of a plain column
    const Expr *expr = nullptr;
};

/// A statement with every name resolved and every type known.
struct Bound {
    Statement statement;
    std::vector<std::unique_ptr<Source>> sources;
    TablePtr target;                    ///< of INSERT, UPDATE and DELETE
    std::vector<OutputColumn> columns;  ///< of a SELECT
    std::vector<const Source *> tables; ///< of a SELECT whose rows are rows of tables: these, the one whose
                                        ///< row a deletion removes first
    bool rowwise = false;               ///< rows can be kept by their keys and written to
    bool timeDependent = false;         ///< holds today's date: means something else tomorrow

    const Select &select() const { return *std::get<SelectPtr>(statement); }
    /// The rows of one table in the order in which they were entered.
    bool naturalOrder() const { return tables.size() == 1 && select().orderBy.empty(); }
};

class Binder
{
public:
    explicit Binder(const Catalogue &catalogue) : catalogue_(catalogue) {}

    /// Of any statement but DDL. Throws BadParameters for a name that is no column, AmbiguousName,
    /// TableNotFound, TypeMismatch, NotAggregated.
    std::shared_ptr<Bound> bind(Statement statement);
    /// A condition over a query's columns, as the finding of rows takes one. `expr` may hold parts of
    /// `bound` from then on and must not outlive it.
    void bindCriterion(ExprPtr &expr, const Bound &bound);

private:
    struct Scope {
        const Scope *outer = nullptr;
        std::vector<const Source *> sources;
        std::vector<ExprPtr> conditions; ///< of the queries that were merged
        std::vector<OrderItem> order;    ///< theirs, where the statement has none
    };

    void bindSelect(Select &select, const Scope *outer, Bound &bound, bool top);
    void bindMember(Select &select, Scope &scope);
    void bindItems(Select &select, const Scope &scope);
    void bindOrder(Select &select, const Scope &scope);
    void expandStars(Select &select, const Scope &scope) const;
    void describe(Bound &bound) const;
    void findRows(Bound &bound) const;

    void bindFrom(std::unique_ptr<TableRef> &ref, Scope &scope, bool nullable);
    void bindSavedQuery(std::unique_ptr<TableRef> &ref, const QString &text, Scope &scope, bool nullable);
    void mergeQuery(std::unique_ptr<TableRef> &ref, SelectPtr inner, Scope &scope);
    Source *addSource(const QString &alias, bool nullable);

    void bindInsert(Insert &insert, Bound &bound);
    Scope scopeOfTarget(const QString &table, Bound &bound);
    void bindUpdate(Update &update, Bound &bound);
    void bindDelete(Delete &remove, Bound &bound);
    void bindAssigned(ExprPtr &value, const FieldDef &field, const Scope &scope);
    TablePtr requireTable(const QString &name) const;

    void bindExpr(ExprPtr &expr, const Scope &scope);
    void bindCondition(ExprPtr &expr, const Scope &scope);
    void bindName(ExprPtr &expr, const Scope &scope);
    bool resolveIn(ExprPtr &expr, const Scope &scope);
    bool resolveOutput(ExprPtr &expr);
    void bindCall(ExprPtr &expr, const Scope &scope);
    void bindSubquery(Expr &expr, const Scope &scope);

    const Catalogue &catalogue_;
    Bound *bound_ = nullptr;
    const Bound *criterionOf_ = nullptr;
    bool aggregates_ = false; ///< the member at hand has some
    bool aggregatesAllowed_ = false;
    int depth_ = 0; ///< of saved queries within saved queries
};

/// Both trees mean the same column or computation.
bool sameBound(const Expr &a, const Expr &b);

} // namespace dao
