#include "platform/richtext/lexer.h"

#include <algorithm>

namespace richtext
{

namespace
{

constexpr int largestParameter = 1'000'000'000;
constexpr qsizetype longestWord = 32;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBetweenTexts(char c)
{
    return c == '\r' || c == '\n' || c == '\0';
}

bool endsText(char c)
{
    return c == '\\' || c == '{' || c == '}' || isBetweenTexts(c);
}

qsizetype lengthWhile(QByteArrayView bytes, bool (*holds)(char))
{
    return std::find_if_not(bytes.begin(), bytes.end(), holds) - bytes.begin();
}

} // namespace

QByteArrayView Lexer::take(qsizetype count)
{
    const QByteArrayView taken = rest_.first(std::min(count, rest_.size()));
    rest_ = rest_.sliced(taken.size());
    return taken;
}

Token Lexer::next()
{
    take(lengthWhile(rest_, isBetweenTexts));
    if (rest_.isEmpty())
        return {};
    switch (rest_.front()) {
    case '{':
        take(1);
        return {Token::Kind::GroupStart};
    case '}':
        take(1);
        return {Token::Kind::GroupEnd};
    case '\\':
        take(1);
        return control();
    default:
        return {.kind = Token::Kind::Text,
                .bytes = take(lengthWhile(rest_, [](char c) { return !endsText(c); }))};
    }
}

Token Lexer::control()
{
    if (rest_.isEmpty())
        return {};
    const char c = rest_.front();
    if (isLetter(c))
        return word();
    const QByteArrayView symbol = take(1);
    if (c == '\'')
        return hexByte();
    if (c == '\\' || c == '{' || c == '}')
        return {.kind = Token::Kind::Text, .bytes = symbol};
    if (c == '\r' || c == '\n')
        return {.kind = Token::Kind::Word, .word = "par"};
    return {.kind = Token::Kind::Word, .word = {symbol.data(), 1}};
}

Token Lexer::word()
{
    const QByteArrayView name = take(std::min(lengthWhile(rest_, isLetter), longestWord));
    Token token{.kind = Token::Kind::Word, .word = {name.data(), static_cast<std::size_t>(name.size())}};
    const bool negative = rest_.size() > 1 && rest_[0] == '-' && isDigit(rest_[1]);
    if (negative)
        take(1);
    for (char digit : take(lengthWhile(rest_, isDigit))) {
        token.hasParameter = true;
        token.parameter =
            token.parameter < largestParameter / 10 ? token.parameter * 10 + (digit - '0') : largestParameter;
    }
    if (negative)
        token.parameter = -token.parameter;
    if (!rest_.isEmpty() && rest_.front() == ' ')
        take(1);
    if (token.word == "bin")
        return {.kind = Token::Kind::Binary, .bytes = take(std::max(token.parameter, 0))};
    return token;
}

Token Lexer::hexByte()
{
    const QByteArrayView digits = take(2);
    if (digits.size() < 2 || hexDigit(digits[0]) < 0 || hexDigit(digits[1]) < 0)
        return {.kind = Token::Kind::Text, .bytes = digits};
    return {.kind = Token::Kind::Byte,
            .parameter = hexDigit(digits[0]) * 16 + hexDigit(digits[1]),
            .hasParameter = true};
}

} // namespace richtext
