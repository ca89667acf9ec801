#pragma once

#include "platform/dao/dialect/ast.h"
#include "platform/dao/dialect/lexer.h"

namespace dao
{

/// What the parsers of expressions and of statements share: the token at hand and the steps over it.
class ParserBase
{
public:
    explicit ParserBase(QStringView source);

protected:
    const Token &token() const { return token_; }
    void advance() { token_ = lexer_.next(); }
    [[noreturn]] void fail() const { throwSyntaxError(source_, token_.position); }

    bool at(Symbol symbol) const { return token_.symbol == symbol && token_.kind == TokenKind::Symbol; }
    bool at(Word word) const { return token_.word == word; }
    bool atWord(QStringView word) const; ///< a word that is not reserved
    bool take(Symbol symbol);
    bool take(Word word);
    bool takeWord(QStringView word);
    void expect(Symbol symbol);
    void expect(Word word);
    void expectWord(QStringView word);
    /// A name: bracketed, or a word that is not reserved.
    bool atName() const;
    QString expectName();
    qint64 expectWhole();
    void expectEnd();

private:
    QStringView source_;
    Lexer lexer_;
    Token token_;
};

/// Expressions and SELECT, which hold each other.
class QueryParser : public ParserBase
{
public:
    using ParserBase::ParserBase;
    ExprPtr criterion();
    SelectPtr wholeSelect();

protected:
    SelectPtr select();
    ExprPtr expression();
    std::vector<ExprPtr> expressionList();

private:
    SelectPtr member();
    SelectItem item();
    std::unique_ptr<TableRef> joinedTables();
    std::unique_ptr<TableRef> tableOrJoin();

    void countLink();
    ExprPtr conjunction();
    ExprPtr negation();
    ExprPtr comparison();
    ExprPtr predicate(ExprPtr operand, bool negated);
    ExprPtr concatenation();
    ExprPtr sum();
    ExprPtr modulo();
    ExprPtr integerDivision();
    ExprPtr product();
    ExprPtr sign();
    ExprPtr power();
    ExprPtr primary();
    ExprPtr nameOrCall();
    ExprPtr call(const QString &name, qsizetype position);
    ExprPtr number();
    ExprPtr node(ExprKind kind) const;
    ExprPtr binary(ExprKind kind, Operator op, ExprPtr left, ExprPtr right);

    int depth_ = 0;
    int links_ = 0;
    friend class DepthGuard;
};

} // namespace dao
