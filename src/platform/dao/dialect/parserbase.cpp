#include "platform/dao/dialect/parserbase.h"

#include "platform/dao/dialect/names.h"

namespace dao
{

ParserBase::ParserBase(QStringView source) : source_(source), lexer_(source), token_(lexer_.next())
{
}

bool ParserBase::atWord(QStringView word) const
{
    return token_.kind == TokenKind::Name && sameName(token_.text, word);
}

bool ParserBase::take(Symbol symbol)
{
    if (!at(symbol))
        return false;
    advance();
    return true;
}

bool ParserBase::take(Word word)
{
    if (!at(word))
        return false;
    advance();
    return true;
}

bool ParserBase::takeWord(QStringView word)
{
    if (!atWord(word))
        return false;
    advance();
    return true;
}

void ParserBase::expect(Symbol symbol)
{
    if (!take(symbol))
        fail();
}

void ParserBase::expect(Word word)
{
    if (!take(word))
        fail();
}

void ParserBase::expectWord(QStringView word)
{
    if (!takeWord(word))
        fail();
}

bool ParserBase::atName() const
{
    return token_.kind == TokenKind::BracketName ||
           (token_.kind == TokenKind::Name && token_.word == Word::None);
}

QString ParserBase::expectName()
{
    if (!atName())
        fail();
    const QString name = token_.text.trimmed().toString();
    advance();
    return name;
}

qint64 ParserBase::expectWhole()
{
    bool ok = false;
    const qint64 number = token_.kind == TokenKind::Number ? token_.text.toLongLong(&ok) : 0;
    if (!ok)
        fail();
    advance();
    return number;
}

void ParserBase::expectEnd()
{
    take(Symbol::Semicolon);
    if (token_.kind != TokenKind::End)
        fail();
}

} // namespace dao
