#include "platform/reports/text.h"

#include "platform/basic/runtime.h"
#include "platform/reports/error.h"

#include <QRegularExpression>

#include <kainjow/mustache.hpp>

#include <deque>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

using Data = kainjow::mustache::basic_data<std::string>;

/// A name after # or ^ asks whether the value is there; this sign tells it from the value itself.
constexpr QChar asks = u'?';

const QRegularExpression &braces()
{
    static const QRegularExpression pattern(u"\\{\\{\\{?\\s*([#^/&!>=]?)\\s*([^{}]*?)\\s*\\}?\\}\\}"_s);
    return pattern;
}

std::string plain(const std::string &text)
{
    return text;
}

std::string escaped(const std::string &text)
{
    return QString::fromStdString(text).toHtmlEscaped().replace(u'\n', u"<br/>"_s).toStdString();
}

basic::Value valueOf(const Expression &expression, const Scope &scope)
{
    switch (expression.source) {
    case Expression::Source::Field:
        return scope.field ? scope.field(expression.index) : basic::Value();
    case Expression::Source::Total:
        return scope.totals ? scope.totals->at(scope.level, static_cast<std::size_t>(expression.index))
                                  .total(expression.total)
                            : basic::Value();
    case Expression::Source::Parameter:
        return expression.parameter;
    case Expression::Source::Page:
        return scope.page;
    case Expression::Source::PageCount:
        return scope.pageCount > 0 ? basic::Value(scope.pageCount) : basic::Value(u"…");
    case Expression::Source::Continued:
        return scope.continued;
    }
    return {};
}

QString shown(const Expression &expression, const Scope &scope)
{
    const basic::Value value = valueOf(expression, scope);
    if (expression.pattern.isEmpty())
        return value.text();
    if (expression.pattern == u"si/no")
        return value.isBlank() ? QString() : value.truth() ? u"Sí"_s : u"No"_s;
    return basic::format(value, expression.pattern);
}

bool isThere(const basic::Value &value)
{
    return !value.isBlank() && (value.as<QString>() || value.truth());
}

/// Looks the names up as the template comes to them.
class Context : public kainjow::mustache::basic_context<std::string>
{
public:
    Context(const QHash<QString, Expression> &meanings, const Scope &scope)
        : meanings_(meanings), scope_(scope)
    {
    }
    void push(const Data *) override {}
    void pop() override {}
    const Data *get_partial(const std::string &) const override { return nullptr; }
    const Data *get(const std::string &name) const override
    {
        QString wanted = QString::fromStdString(name);
        const bool question = wanted.startsWith(asks);
        if (question)
            wanted.remove(0, 1);
        const auto found = meanings_.constFind(wanted);
        if (found == meanings_.constEnd())
            return nullptr;
        if (question)
            given_.emplace_back(isThere(valueOf(*found, scope_)));
        else
            given_.emplace_back(shown(*found, scope_).toStdString());
        return &given_.back();
    }

private:
    const QHash<QString, Expression> &meanings_;
    const Scope &scope_;
    mutable std::deque<Data> given_;
};

} // namespace

struct Text::Template {
    explicit Template(const std::string &text) : mustache(text) {}
    kainjow::mustache::mustache mustache;
};

Text::Text(Kind kind, const QString &source) : kind_(kind), source_(source.trimmed())
{
    const auto between = [this](qsizetype from, qsizetype to) {
        const QString text = source_.sliced(from, to - from);
        if (text.contains(u"{{") || text.contains(u"}}"))
            throw Error(Error::ReportFile, u"las llaves de una expresión no cierran"_s);
        return text;
    };
    QString prepared;
    qsizetype done = 0;
    for (auto each = braces().globalMatch(source_); each.hasNext();) {
        const auto match = each.next();
        const QString sign = match.captured(1), name = match.captured(2);
        if (sign == u">" || sign == u"=" || (name.isEmpty() && sign != u"!"))
            throw Error(Error::ReportFile, u"no se entiende %1"_s.arg(match.captured()));
        if (sign != u"!" && !names_.contains(name))
            names_ += name;
        prepared += between(done, match.capturedStart());
        if (!sign.isEmpty() && u"#^/"_s.contains(sign))
            prepared += u"{{"_s + sign + asks + name + u"}}"_s;
        else
            prepared += match.captured();
        done = match.capturedEnd();
    }
    prepared += between(done, source_.size());
    const auto only = braces().match(source_);
    single_ = only.capturedLength() == source_.size() && only.captured(1).isEmpty();
    if (names_.isEmpty() && done == 0)
        return;
    template_ = std::make_shared<Template>(prepared.toStdString());
    if (!template_->mustache.is_valid())
        throw Error(Error::ReportFile, u"una parte {{#…}} queda sin su {{/…}}"_s);
    template_->mustache.set_custom_escape(kind == Kind::Html ? escaped : plain);
}

void Text::bind(const std::function<Expression(const QString &)> &resolve)
{
    meanings_.clear();
    for (const QString &name : names_)
        meanings_.insert(name, resolve(name));
}

bool Text::uses(Expression::Source source) const
{
    return std::any_of(meanings_.begin(), meanings_.end(),
                       [&](const Expression &meaning) { return meaning.source == source; });
}

QString Text::render(const Scope &scope) const
{
    if (!template_)
        return source_;
    if (single_ && kind_ == Kind::Plain)
        return shown(meanings_[names_.first()], scope);
    Context context(meanings_, scope);
    return QString::fromStdString(template_->mustache.render(context));
}

basic::Value Text::value(const Scope &scope) const
{
    return single_ ? valueOf(meanings_[names_.first()], scope) : basic::Value(render(scope));
}

std::optional<int> Text::fieldOrdinal() const
{
    const Expression meaning = single_ ? meanings_[names_.first()] : Expression();
    return meaning.source == Expression::Source::Field ? std::optional(meaning.index) : std::nullopt;
}

QString Text::pattern() const
{
    return single_ ? meanings_[names_.first()].pattern : QString();
}

} // namespace reports
