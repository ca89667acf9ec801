#pragma once

#include <QString>
#include <QStringView>

namespace dao
{

/// Reserved words of the dialect. A reserved word is a name only in brackets.
enum class Word : quint8 {
    None,
    All,
    And,
    As,
    Asc,
    Between,
    By,
    Delete,
    Desc,
    Distinct,
    Distinctrow,
    Exists,
    False,
    From,
    Group,
    Having,
    In,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Left,
    Like,
    Mod,
    Not,
    Null,
    On,
    Or,
    Order,
    Outer,
    Right,
    Select,
    Set,
    Top,
    True,
    Union,
    Update,
    Values,
    Where,
    Xor,
};

enum class TokenKind : quint8 { End, Name, BracketName, Number, Text, Date, Symbol };

enum class Symbol : quint8 {
    None,
    Open,
    Close,
    Comma,
    Point,
    Semicolon,
    Plus,
    Minus,
    Times,
    Divide,
    IntDivide,
    Power,
    Join,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
};

/// One token. `text` is the part of the source without its delimiters.
struct Token {
    TokenKind kind = TokenKind::End;
    Word word = Word::None;
    Symbol symbol = Symbol::None;
    qsizetype position = 0;
    QStringView text;
};

/// Splits a text of the dialect into tokens; the text must outlive them. Throws Error::SyntaxError with the
/// position of a character or a literal that has no end.
class Lexer
{
public:
    explicit Lexer(QStringView source) : source_(source) {}
    Token next();

private:
    Token delimited(TokenKind kind, QChar end);
    Token number();
    Token name();
    Token symbol();

    QStringView source_;
    qsizetype at_ = 0;
};

/// Error::SyntaxError that quotes the statement from the position on.
[[noreturn]] void throwSyntaxError(QStringView source, qsizetype position);

} // namespace dao
