#include "platform/reports/selection.h"

#include "platform/dao/sqltext.h"
#include "platform/reports/error.h"

#include <QDate>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

enum class Kind { End, Word, Number, Text, Field, Date, Sign };

struct Token {
    Kind kind = Kind::End;
    QString text; ///< what stands in the formula; of a text or a field the content
    qsizetype at = 0;
};

[[noreturn]] void fail(const QString &formula, qsizetype at, const QString &what)
{
    throw Error(Error::Selection,
                u"La selección del informe no se entiende en el lugar %1: %2.\n\n%3\n%4^"_s.arg(
                    QString::number(at + 1), what, formula, QString(at, u' ')));
}

/// Cuts a formula into its tokens; the last one is the end.
class Lexer
{
public:
    explicit Lexer(const QString &formula) : formula_(formula) {}

    std::vector<Token> tokens()
    {
        std::vector<Token> all;
        do
            all.push_back(next());
        while (all.back().kind != Kind::End);
        return all;
    }

private:
    Token next()
    {
        while (at_ < formula_.size() && formula_[at_].isSpace())
            ++at_;
        const qsizetype start = at_;
        if (at_ == formula_.size())
            return {Kind::End, {}, start};
        const QChar c = formula_[at_];
        if (c == u'\'' || c == u'"')
            return {Kind::Text, quoted(c), start};
        if (c == u'{')
            return {Kind::Field, upTo(u'}', u"falta la llave que cierra el campo"_s), start};
        if (c == u'#')
            return {Kind::Date, upTo(u'#', u"falta el # que cierra la fecha"_s), start};
        if (c.isDigit())
            return {Kind::Number, number(), start};
        if (c.isLetter())
            return {Kind::Word, run([](QChar letter) { return letter.isLetter(); }), start};
        return {Kind::Sign, sign(), start};
    }

    /// The content between quotes, where a quote written twice is one.
    QString quoted(QChar quote)
    {
        const qsizetype start = at_++;
        QString content;
        while (at_ < formula_.size()) {
            const QChar c = formula_[at_++];
            if (c != quote) {
                content += c;
                continue;
            }
            if (at_ == formula_.size() || formula_[at_] != quote)
                return content;
            content += formula_[at_++];
        }
        fail(formula_, start, u"falta la comilla que cierra el texto"_s);
    }

    QString upTo(QChar end, const QString &missing)
    {
        const qsizetype close = formula_.indexOf(end, at_ + 1);
        if (close < 0)
            fail(formula_, at_, missing);
        const QString content = formula_.sliced(at_ + 1, close - at_ - 1);
        at_ = close + 1;
        return content;
    }

    template <class Belongs>
    QString run(Belongs belongs)
    {
        const qsizetype start = at_;
        while (at_ < formula_.size() && belongs(formula_[at_]))
            ++at_;
        return formula_.sliced(start, at_ - start);
    }

    QString number()
    {
        const auto digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
        const qsizetype start = at_;
        QString text = run(digit);
        if (at_ + 1 < formula_.size() && formula_[at_] == u'.' && digit(formula_[at_ + 1])) {
            ++at_;
            text += u'.' + run(digit);
        }
        if (text.isEmpty()) // a digit of another script
            fail(formula_, start, u"no se esperaba «%1»"_s.arg(formula_[start]));
        return text;
    }

    QString sign()
    {
        for (const QLatin1StringView two : {"<>"_L1, "<="_L1, ">="_L1})
            if (QStringView(formula_).sliced(at_).startsWith(two)) {
                at_ += 2;
                return two;
            }
        const QChar c = formula_[at_];
        if (!u"=<>(),-"_s.contains(c))
            fail(formula_, at_, u"no se esperaba «%1»"_s.arg(c));
        ++at_;
        return c;
    }

    const QString &formula_;
    qsizetype at_ = 0;
};

/// Reads the grammar from the loosest binding to the tightest, writing the dialect as it goes.
class Parser
{
public:
    explicit Parser(const QString &formula) : formula_(formula), tokens_(Lexer(formula).tokens()) {}

    QString parse()
    {
        const QString condition = alternatives();
        if (here().kind != Kind::End)
            unexpected(u"«and», «or» o el final"_s);
        return condition;
    }

private:
    static constexpr int deepest = 200; ///< of parentheses; a formula of the practice has three

    const Token &here() const { return tokens_[at_]; }
    bool isWord(QStringView word) const
    {
        return here().kind == Kind::Word && here().text.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isSign(QStringView sign) const { return here().kind == Kind::Sign && here().text == sign; }
    bool takeWord(QStringView word) { return isWord(word) && ++at_; }
    bool takeSign(QStringView sign) { return isSign(sign) && ++at_; }

    [[noreturn]] void unexpected(const QString &wanted) const
    {
        const QString found =
            here().kind == Kind::End ? u"la selección termina"_s : u"hay «%1»"_s.arg(here().text);
        fail(formula_, here().at, u"se esperaba %1 y %2"_s.arg(wanted, found));
    }

    void expectSign(QStringView sign)
    {
        if (!takeSign(sign))
            unexpected(u"«%1»"_s.arg(sign));
    }

    QString alternatives()
    {
        QString condition = conjunction();
        while (takeWord(u"or"))
            condition += u" OR "_s + conjunction();
        return condition;
    }

    QString conjunction()
    {
        QString condition = negation();
        while (takeWord(u"and"))
            condition += u" AND "_s + negation();
        return condition;
    }

    QString negation()
    {
        deepen();
        QString condition;
        if (takeWord(u"not")) {
            condition = u"NOT ("_s + negation() + u')';
        } else if (takeSign(u"(")) {
            condition = u'(' + alternatives() + u')';
            expectSign(u")");
        } else {
            condition = comparison();
        }
        --depth_;
        return condition;
    }

    void deepen()
    {
        if (++depth_ > deepest)
            fail(formula_, here().at, u"demasiados paréntesis"_s);
    }

    /// A truth value may stand alone.
    QString comparison()
    {
        const bool truth = isWord(u"true") || isWord(u"false") || here().kind == Kind::Field;
        QString left = operand();
        for (const QStringView sign : {u"=", u"<>", u"<=", u">=", u"<", u">"})
            if (takeSign(sign))
                return left + u' ' + sign.toString() + u' ' + operand();
        if (!truth)
            unexpected(u"una comparación"_s);
        return left;
    }

    QString operand()
    {
        const Token token = here();
        switch (token.kind) {
        case Kind::Field:
            ++at_;
            return field(token);
        case Kind::Text:
            ++at_;
            return dao::quoted(token.text);
        case Kind::Number:
            ++at_;
            return token.text;
        case Kind::Date:
            ++at_;
            return dateBetweenSigns(token);
        case Kind::Word:
            return named();
        case Kind::Sign:
            if (takeSign(u"-") && here().kind == Kind::Number)
                return u'-' + operand();
            break;
        case Kind::End:
            break;
        }
        unexpected(u"un campo o un valor"_s);
    }

    QString named()
    {
        const Token token = here();
        if (takeWord(u"true"))
            return u"True"_s;
        if (takeWord(u"false"))
            return u"False"_s;
        if (takeWord(u"date"))
            return date(token);
        for (const QStringView function : {u"month", u"year"})
            if (takeWord(function)) {
                deepen();
                expectSign(u"(");
                const QString argument = operand();
                expectSign(u")");
                --depth_;
                return function.toString() + u'(' + argument + u')';
            }
        unexpected(u"un campo o un valor"_s);
    }

    /// {Tabla.campo}; either name may stand in brackets.
    QString field(const Token &token) const
    {
        const QString both = token.text.trimmed();
        const qsizetype dot = both.startsWith(u'[') ? both.indexOf(u"]."_s) + 1 : both.indexOf(u'.');
        const QString table = dot > 0 ? plainName(both.first(dot)) : QString();
        const QString column = dot > 0 ? plainName(both.sliced(dot + 1)) : QString();
        if (table.isEmpty() || column.isEmpty())
            fail(formula_, token.at, u"un campo se escribe {Tabla.campo}"_s);
        return u"[%1].[%2]"_s.arg(table, column);
    }

    /// A name without its brackets; nothing where there are others within.
    static QString plainName(const QString &written)
    {
        QString name = written.trimmed();
        if (name.startsWith(u'[') && name.endsWith(u']') && name.size() > 1)
            name = name.sliced(1, name.size() - 2);
        return name.contains(u'[') || name.contains(u']') ? QString() : name;
    }

    int wholeNumber()
    {
        bool ok = false;
        const int number = here().kind == Kind::Number ? here().text.toInt(&ok) : 0;
        if (!ok)
            unexpected(u"un número entero"_s);
        ++at_;
        return number;
    }

    QString date(const Token &start)
    {
        expectSign(u"(");
        const int year = wholeNumber();
        expectSign(u",");
        const int month = wholeNumber();
        expectSign(u",");
        const int day = wholeNumber();
        expectSign(u")");
        return dialectDate(start, QDate(year, month, day));
    }

    QString dateBetweenSigns(const Token &token) const
    {
        const QStringList parts = token.text.trimmed().split(u'/');
        return dialectDate(
            token, parts.size() == 3 ? QDate(parts[2].toInt(), parts[0].toInt(), parts[1].toInt()) : QDate());
    }

    QString dialectDate(const Token &token, QDate date) const
    {
        if (!date.isValid() || date.year() < 100 || date.year() > 9999)
            fail(formula_, token.at, u"no hay tal día"_s);
        return dao::cdate(basic::Date(date));
    }

    const QString &formula_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

} // namespace

QString toDialect(const QString &formula)
{
    return formula.trimmed().isEmpty() ? u"True"_s : Parser(formula).parse();
}

QString literal(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'';
}

QString literal(basic::Date day)
{
    const QDate date = day.date();
    return u"date(%1,%2,%3)"_s.arg(date.year()).arg(date.month()).arg(date.day());
}

QString period(const QString &field, basic::Date from, basic::Date to)
{
    return u"{%1} >= %2 and {%1} <= %3"_s.arg(field, literal(from), literal(to));
}

} // namespace reports
