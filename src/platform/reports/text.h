#pragma once

#include "platform/basic/value.h"
#include "platform/reports/totals.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace reports
{

/// Values that whoever runs a report gives it, by name: {{desde}}, {{consultorio}}.
using Parameters = QHash<QString, basic::Value>;

/// What one name between braces means for the rows of a query.
struct Expression {
    enum class Source { Field, Total, Parameter, Page, PageCount, Continued };
    Source source = Source::Parameter;
    int index = -1; ///< the field's ordinal, or the totalled column's place
    Total total = Total::None;
    basic::Value parameter;
    QString pattern; ///< of basic::format; "si/no" for a truth value
};

/// Where a text is shown: what its expressions are read from.
struct Scope {
    std::function<basic::Value(int ordinal)> field;
    const Totals *totals = nullptr;
    std::size_t level = 0; ///< of the totals
    int page = 0;
    int pageCount = 0; ///< 0 while it is not known
    bool continued = false;
};

/// A text of a report with expressions between double braces: {{Apellido y Nombres}}, {{Fecha|dd/mm/yyyy}},
/// {{suma(Importe)|#,##0.00}}, and parts that are shown when a value is there, {{#Alergia}}...{{/Alergia}},
/// or is not, {{^Alergia}}...{{/Alergia}}. Values stand in HTML as plain text, whatever signs they hold;
/// {{{Nota}}} takes the value as HTML.
class Text
{
public:
    enum class Kind { Plain, Html };
    explicit Text(Kind kind) : kind_(kind) {}
    /// Throws reports::Error when the braces do not match.
    Text(Kind kind, const QString &source);

    bool isEmpty() const { return source_.isEmpty(); }
    const QString &source() const { return source_; }
    const QStringList &names() const { return names_; } ///< the expressions as written, each once

    /// Gives each name its meaning, by `resolve`.
    void bind(const std::function<Expression(const QString &name)> &resolve);
    bool uses(Expression::Source source) const;
    QString render(const Scope &scope) const;
    bool isSingle() const { return single_; }     ///< one expression and nothing else
    basic::Value value(const Scope &scope) const; ///< of such a text; of another what it reads
    std::optional<int> fieldOrdinal() const;      ///< of such a text that shows a field
    QString pattern() const;                      ///< of such a text

private:
    struct Template;
    Kind kind_;
    QString source_;
    QStringList names_;
    std::shared_ptr<Template> template_;
    QHash<QString, Expression> meanings_;
    bool single_ = false; ///< one expression and nothing else
};

} // namespace reports
