#pragma once

#include <QByteArrayView>

#include <string_view>

namespace richtext
{

/// A piece of an RTF file. Views point into the file.
struct Token {
    enum class Kind {
        End,
        GroupStart,
        GroupEnd,
        Word,  ///< a control word, or a control symbol as a word of that one character
        Text,  ///< characters of the file's code page
        Byte,  ///< one such character, written as its number in `parameter`
        Binary ///< bytes as they are
    };
    Kind kind = Kind::End;
    std::string_view word{};
    int parameter = 0;
    bool hasParameter = false;
    QByteArrayView bytes{};

    /// Of a word that switches something: with 0 it switches it off.
    bool on() const { return !hasParameter || parameter != 0; }
};

/// Splits an RTF file into its tokens. Any bytes give tokens, and every token takes at least one byte.
class Lexer
{
public:
    explicit Lexer(QByteArrayView file) : rest_(file) {}
    Token next();

private:
    Token control();
    Token word();
    Token hexByte();
    QByteArrayView take(qsizetype count);

    QByteArrayView rest_;
};

/// The value of a hexadecimal digit; -1 for another character.
constexpr int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace richtext
