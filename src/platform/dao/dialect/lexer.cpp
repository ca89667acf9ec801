#include "platform/dao/dialect/lexer.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/error.h"

#include <algorithm>
#include <array>

namespace dao
{

namespace
{

struct Reserved {
    QLatin1StringView text;
    Word word;
};

// In alphabetical order: looked up by halves.
constexpr std::array reserved{
    Reserved{QLatin1StringView("ALL"), Word::All},
    Reserved{QLatin1StringView("AND"), Word::And},
    Reserved{QLatin1StringView("AS"), Word::As},
    Reserved{QLatin1StringView("ASC"), Word::Asc},
    Reserved{QLatin1StringView("BETWEEN"), Word::Between},
    Reserved{QLatin1StringView("BY"), Word::By},
    Reserved{QLatin1StringView("DELETE"), Word::Delete},
    Reserved{QLatin1StringView("DESC"), Word::Desc},
    Reserved{QLatin1StringView("DISTINCT"), Word::Distinct},
    Reserved{QLatin1StringView("DISTINCTROW"), Word::Distinctrow},
    Reserved{QLatin1StringView("EXISTS"), Word::Exists},
    Reserved{QLatin1StringView("FALSE"), Word::False},
    Reserved{QLatin1StringView("FROM"), Word::From},
    Reserved{QLatin1StringView("GROUP"), Word::Group},
    Reserved{QLatin1StringView("HAVING"), Word::Having},
    Reserved{QLatin1StringView("IN"), Word::In},
    Reserved{QLatin1StringView("INNER"), Word::Inner},
    Reserved{QLatin1StringView("INSERT"), Word::Insert},
    Reserved{QLatin1StringView("INTO"), Word::Into},
    Reserved{QLatin1StringView("IS"), Word::Is},
    Reserved{QLatin1StringView("JOIN"), Word::Join},
    Reserved{QLatin1StringView("LEFT"), Word::Left},
    Reserved{QLatin1StringView("LIKE"), Word::Like},
    Reserved{QLatin1StringView("MOD"), Word::Mod},
    Reserved{QLatin1StringView("NOT"), Word::Not},
    Reserved{QLatin1StringView("NULL"), Word::Null},
    Reserved{QLatin1StringView("ON"), Word::On},
    Reserved{QLatin1StringView("OR"), Word::Or},
    Reserved{QLatin1StringView("ORDER"), Word::Order},
    Reserved{QLatin1StringView("OUTER"), Word::Outer},
    Reserved{QLatin1StringView("RIGHT"), Word::Right},
    Reserved{QLatin1StringView("SELECT"), Word::Select},
    Reserved{QLatin1StringView("SET"), Word::Set},
    Reserved{QLatin1StringView("TOP"), Word::Top},
    Reserved{QLatin1StringView("TRUE"), Word::True},
    Reserved{QLatin1StringView("UNION"), Word::Union},
    Reserved{QLatin1StringView("UPDATE"), Word::Update},
    Reserved{QLatin1StringView("VALUES"), Word::Values},
    Reserved{QLatin1StringView("WHERE"), Word::Where},
    Reserved{QLatin1StringView("XOR"), Word::Xor},
};
constexpr qsizetype longestReserved = 11;

Word reservedWord(QStringView text)
{
    if (text.size() > longestReserved)
        return Word::None;
    const auto it =
        std::lower_bound(reserved.begin(), reserved.end(), text, [](const Reserved &r, QStringView t) {
            return t.compare(r.text, Qt::CaseInsensitive) > 0;
        });
    return it != reserved.end() && text.compare(it->text, Qt::CaseInsensitive) == 0 ? it->word : Word::None;
}

bool startsName(QChar c)
{
    return c.isLetter() || c == u'_' || c == u'$' || c.isSurrogate();
}

bool continuesName(QChar c)
{
    return startsName(c) || c.isDigit() || c.isMark();
}

bool asciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

void throwSyntaxError(QStringView source, qsizetype position)
{
    QStringView rest = source.mid(position).trimmed();
    if (rest.isEmpty())
        rest = source.trimmed();
    throw Error(Error::SyntaxError, QStringLiteral("Error de sintaxis en la expresión, posición %1: '%2'.")
                                        .arg(position + 1)
                                        .arg(rest.left(60)));
}

Token Lexer::next()
{
    while (at_ < source_.size() && source_[at_].isSpace())
        ++at_;
    if (at_ >= source_.size())
        return {.position = source_.size(), .text = {}};
    const QChar c = source_[at_];
    if (c == u'[')
        return delimited(TokenKind::BracketName, u']');
    if (c == u'\'' || c == u'"')
        return delimited(TokenKind::Text, c);
    if (c == u'#')
        return delimited(TokenKind::Date, u'#');
    if (asciiDigit(c) || (c == u'.' && at_ + 1 < source_.size() && asciiDigit(source_[at_ + 1])))
        return number();
    if (startsName(c))
        return name();
    return symbol();
}

Token Lexer::delimited(TokenKind kind, QChar end)
{
    const qsizetype start = at_;
    for (qsizetype i = start + 1; i < source_.size(); ++i) {
        if (source_[i] != end)
            continue;
        // A doubled quote stands for one within a text.
        if (kind == TokenKind::Text && i + 1 < source_.size() && source_[i + 1] == end) {
            ++i;
            continue;
        }
        at_ = i + 1;
        const QStringView text = source_.mid(start + 1, i - start - 1);
        if (kind == TokenKind::BracketName && text.trimmed().isEmpty())
            break;
        return {.kind = kind, .position = start, .text = text};
    }
    throwSyntaxError(source_, start);
}

Token Lexer::number()
{
    const qsizetype start = at_;
    const auto digits = [&] {
        while (at_ < source_.size() && asciiDigit(source_[at_]))
            ++at_;
    };
    digits();
    if (at_ < source_.size() && source_[at_] == u'.') {
        ++at_;
        digits();
    }
    if (at_ < source_.size() && (source_[at_] == u'e' || source_[at_] == u'E')) {
        const qsizetype mark = at_++;
        if (at_ < source_.size() && (source_[at_] == u'+' || source_[at_] == u'-'))
            ++at_;
        const qsizetype exponent = at_;
        digits();
        if (at_ == exponent)
            at_ = mark;
    }
    if (at_ < source_.size() && startsName(source_[at_]))
        throwSyntaxError(source_, start);
    return {.kind = TokenKind::Number, .position = start, .text = source_.mid(start, at_ - start)};
}

Token Lexer::name()
{
    const qsizetype start = at_;
    while (at_ < source_.size() && continuesName(source_[at_]))
        ++at_;
    const QStringView text = source_.mid(start, at_ - start);
    return {.kind = TokenKind::Name, .word = reservedWord(text), .position = start, .text = text};
}

Token Lexer::symbol()
{
    const qsizetype start = at_++;
    const QChar following = at_ < source_.size() ? source_[at_] : QChar();
    const auto token = [&](Symbol symbol, qsizetype length = 1) {
        at_ = start + length;
        return Token{.kind = TokenKind::Symbol,
                     .symbol = symbol,
                     .position = start,
                     .text = source_.mid(start, length)};
    };
    switch (source_[start].unicode()) {
    case u'(':
        return token(Symbol::Open);
    case u')':
        return token(Symbol::Close);
    case u',':
        return token(Symbol::Comma);
    case u'.':
    case u'!':
        return token(Symbol::Point);
    case u';':
        return token(Symbol::Semicolon);
    case u'+':
        return token(Symbol::Plus);
    case u'-':
        return token(Symbol::Minus);
    case u'*':
        return token(Symbol::Times);
    case u'/':
        return token(Symbol::Divide);
    case u'\\':
        return token(Symbol::IntDivide);
    case u'^':
        return token(Symbol::Power);
    case u'&':
        return token(Symbol::Join);
    case u'=':
        return token(Symbol::Equal);
    case u'<':
        if (following == u'>')
            return token(Symbol::NotEqual, 2);
        return following == u'=' ? token(Symbol::LessEqual, 2) : token(Symbol::Less);
    case u'>':
        return following == u'=' ? token(Symbol::GreaterEqual, 2) : token(Symbol::Greater);
    default:
        throwSyntaxError(source_, start);
    }
}

} // namespace dao
