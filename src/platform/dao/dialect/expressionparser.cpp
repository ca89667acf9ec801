#include "platform/basic/cleantext.h"
#include "platform/dao/dialect/parserbase.h"
#include "platform/dao/dialect/types.h"
#include "platform/dao/error.h"

namespace dao
{

namespace
{
// Deeper than any person nests parentheses, shallower than the stack.
constexpr int deepestNesting = 200;
// A chain of operators, predicates or joins is a tree as deep as the chain is long.
constexpr int mostLinks = 2000;
} // namespace

class DepthGuard
{
public:
    explicit DepthGuard(QueryParser &parser) : parser_(parser)
    {
        if (++parser_.depth_ > deepestNesting)
            parser_.fail();
    }
    ~DepthGuard() { --parser_.depth_; }
    DepthGuard(const DepthGuard &) = delete;
    DepthGuard &operator=(const DepthGuard &) = delete;

private:
    QueryParser &parser_;
};

ExprPtr QueryParser::criterion()
{
    ExprPtr expr = expression();
    expectEnd();
    return expr;
}

std::vector<ExprPtr> QueryParser::expressionList()
{
    std::vector<ExprPtr> list;
    do
        list.push_back(expression());
    while (take(Symbol::Comma));
    return list;
}

ExprPtr QueryParser::node(ExprKind kind) const
{
    auto expr = std::make_unique<Expr>();
    expr->kind = kind;
    expr->position = token().position;
    return expr;
}

void QueryParser::countLink()
{
    if (++links_ > mostLinks)
        throw Error(Error::SyntaxError, QStringLiteral("La instrucción es demasiado compleja."));
}

ExprPtr QueryParser::binary(ExprKind kind, Operator op, ExprPtr left, ExprPtr right)
{
    countLink();
    auto expr = std::make_unique<Expr>();
    expr->kind = kind;
    expr->op = op;
    expr->position = left->position;
    expr->operands.reserve(2);
    expr->operands.push_back(std::move(left));
    expr->operands.push_back(std::move(right));
    return expr;
}

ExprPtr QueryParser::expression()
{
    const DepthGuard guard(*this);
    ExprPtr left = conjunction();
    while (at(Word::Or) || at(Word::Xor)) {
        const Operator op = at(Word::Or) ? Operator::Or : Operator::Xor;
        advance();
        left = binary(ExprKind::Logic, op, std::move(left), conjunction());
    }
    return left;
}

ExprPtr QueryParser::conjunction()
{
    ExprPtr left = negation();
    while (take(Word::And))
        left = binary(ExprKind::Logic, Operator::And, std::move(left), negation());
    return left;
}

ExprPtr QueryParser::negation()
{
    if (!at(Word::Not))
        return comparison();
    const DepthGuard guard(*this);
    ExprPtr expr = node(ExprKind::Not);
    advance();
    expr->operands.push_back(negation());
    return expr;
}

ExprPtr QueryParser::comparison()
{
    ExprPtr left = concatenation();
    while (true) {
        Operator op = Operator::None;
        switch (token().symbol) {
        case Symbol::Equal:
            op = Operator::Equal;
            break;
        case Symbol::NotEqual:
            op = Operator::NotEqual;
            break;
        case Symbol::Less:
            op = Operator::Less;
            break;
        case Symbol::LessEqual:
            op = Operator::LessEqual;
            break;
        case Symbol::Greater:
            op = Operator::Greater;
            break;
        case Symbol::GreaterEqual:
            op = Operator::GreaterEqual;
            break;
        default:
            break;
        }
        if (op != Operator::None) {
            advance();
            left = binary(ExprKind::Compare, op, std::move(left), concatenation());
            continue;
        }
        if (at(Word::Is) || at(Word::Like) || at(Word::Between) || at(Word::In)) {
            left = predicate(std::move(left), false);
            continue;
        }
        if (!take(Word::Not))
            return left;
        if (!at(Word::Like) && !at(Word::Between) && !at(Word::In))
            fail();
        left = predicate(std::move(left), true);
    }
}

ExprPtr QueryParser::predicate(ExprPtr operand, bool negated)
{
    countLink();
    ExprPtr expr = node(ExprKind::IsNull);
    expr->negated = negated;
    expr->operands.push_back(std::move(operand));
    if (take(Word::Is)) {
        expr->negated = take(Word::Not);
        expect(Word::Null);
    } else if (take(Word::Like)) {
        expr->kind = ExprKind::Like;
        expr->operands.push_back(concatenation());
    } else if (take(Word::Between)) {
        expr->kind = ExprKind::Between;
        expr->operands.push_back(concatenation());
        expect(Word::And);
        expr->operands.push_back(concatenation());
    } else {
        expect(Word::In);
        expr->kind = ExprKind::In;
        expect(Symbol::Open);
        if (at(Word::Select)) {
            expr->select = select();
        } else {
            for (ExprPtr &value : expressionList())
                expr->operands.push_back(std::move(value));
        }
        expect(Symbol::Close);
    }
    return expr;
}

ExprPtr QueryParser::concatenation()
{
    ExprPtr left = sum();
    while (take(Symbol::Join))
        left = binary(ExprKind::Arithmetic, Operator::Join, std::move(left), sum());
    return left;
}

ExprPtr QueryParser::sum()
{
    ExprPtr left = modulo();
    while (at(Symbol::Plus) || at(Symbol::Minus)) {
        const Operator op = at(Symbol::Plus) ? Operator::Add : Operator::Subtract;
        advance();
        left = binary(ExprKind::Arithmetic, op, std::move(left), modulo());
    }
    return left;
}

ExprPtr QueryParser::modulo()
{
    ExprPtr left = integerDivision();
    while (take(Word::Mod))
        left = binary(ExprKind::Arithmetic, Operator::Modulo, std::move(left), integerDivision());
    return left;
}

ExprPtr QueryParser::integerDivision()
{
    ExprPtr left = product();
    while (take(Symbol::IntDivide))
        left = binary(ExprKind::Arithmetic, Operator::IntDivide, std::move(left), product());
    return left;
}

ExprPtr QueryParser::product()
{
    ExprPtr left = sign();
    while (at(Symbol::Times) || at(Symbol::Divide)) {
        const Operator op = at(Symbol::Times) ? Operator::Multiply : Operator::Divide;
        advance();
        left = binary(ExprKind::Arithmetic, op, std::move(left), sign());
    }
    return left;
}

ExprPtr QueryParser::sign()
{
    const DepthGuard guard(*this);
    if (take(Symbol::Plus))
        return sign();
    if (!at(Symbol::Minus))
        return power();
    ExprPtr expr = node(ExprKind::Negate);
    advance();
    expr->operands.push_back(sign());
    return expr;
}

ExprPtr QueryParser::power()
{
    ExprPtr left = primary();
    while (take(Symbol::Power))
        left = binary(ExprKind::Arithmetic, Operator::Power, std::move(left),
                      at(Symbol::Minus) ? sign() : primary());
    return left;
}

ExprPtr QueryParser::primary()
{
    ExprPtr expr = node(ExprKind::Null);
    switch (token().kind) {
    case TokenKind::Number:
        return number();
    case TokenKind::Text: {
        expr->kind = ExprKind::Text;
        QString text = token().text.toString();
        // The delimiter stands before the text: doubled, it is one of its characters.
        const QChar quote = *(token().text.data() - 1);
        if (text.contains(quote))
            text.replace(QString(2, quote), QString(quote));
        expr->literal = basic::cleanText(text);
        advance();
        return expr;
    }
    case TokenKind::Date: {
        const std::optional<basic::Date> date = dateLiteral(token().text);
        if (!date)
            fail();
        expr->kind = ExprKind::Date;
        expr->literal = *date;
        advance();
        return expr;
    }
    case TokenKind::BracketName:
    case TokenKind::Name:
        return nameOrCall();
    case TokenKind::Symbol:
        if (take(Symbol::Open)) {
            if (at(Word::Select)) {
                expr->kind = ExprKind::Subquery;
                expr->select = select();
            } else {
                expr = expression();
            }
            expect(Symbol::Close);
            return expr;
        }
        break;
    case TokenKind::End:
        break;
    }
    fail();
}

ExprPtr QueryParser::number()
{
    ExprPtr expr = node(ExprKind::Number);
    const QStringView text = token().text;
    bool whole = false;
    const qint64 integer = text.toLongLong(&whole);
    expr->literal = whole ? basic::Value(integer) : basic::Value(text.toDouble());
    advance();
    return expr;
}

ExprPtr QueryParser::nameOrCall()
{
    ExprPtr expr = node(ExprKind::Name);
    switch (token().word) {
    case Word::Null:
        expr->kind = ExprKind::Null;
        expr->literal = basic::Null();
        advance();
        return expr;
    case Word::True:
    case Word::False:
        expr->kind = ExprKind::Boolean;
        expr->literal = at(Word::True);
        advance();
        return expr;
    case Word::Exists:
        advance();
        expr->kind = ExprKind::Exists;
        expect(Symbol::Open);
        expr->select = select();
        expect(Symbol::Close);
        return expr;
    case Word::Left:
    case Word::Right: {
        // Reserved for joins, but functions where a parenthesis follows.
        const QString name = token().text.toString();
        advance();
        return call(name, expr->position);
    }
    default:
        break;
    }
    const bool bracketed = token().kind == TokenKind::BracketName;
    QString name = expectName();
    if (!bracketed && at(Symbol::Open))
        return call(name, expr->position);
    while (take(Symbol::Point)) {
        expr->qualifier = std::move(name);
        if (take(Symbol::Times)) {
            expr->kind = ExprKind::Star;
            return expr;
        }
        name = expectName();
    }
    expr->name = std::move(name);
    return expr;
}

ExprPtr QueryParser::call(const QString &name, qsizetype position)
{
    ExprPtr expr = node(ExprKind::Call);
    expr->name = name;
    expr->position = position;
    expect(Symbol::Open);
    if (at(Symbol::Times)) {
        expr->operands.push_back(node(ExprKind::Star));
        advance();
    } else if (!at(Symbol::Close)) {
        expr->operands = expressionList();
    }
    expect(Symbol::Close);
    return expr;
}

} // namespace dao
