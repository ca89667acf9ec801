#include "platform/dao/embedded/sqlwriter.h"

#include "platform/dao/dialect/functions.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/types.h"
#include "platform/dao/embedded/functiontexts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao
{

namespace
{

const QString collation = QStringLiteral(" COLLATE ESPANOL");

bool isColumnOfTable(const Expr &expr)
{
    return expr.kind == ExprKind::Name && expr.source->table;
}

QStringView engineOperator(Operator op)
{
    switch (op) {
    case Operator::Add:
        return u" + ";
    case Operator::Subtract:
        return u" - ";
    case Operator::Multiply:
        return u" * ";
    case Operator::Equal:
        return u" = ";
    case Operator::NotEqual:
        return u" <> ";
    case Operator::Less:
        return u" < ";
    case Operator::LessEqual:
        return u" <= ";
    case Operator::Greater:
        return u" > ";
    case Operator::GreaterEqual:
        return u" >= ";
    case Operator::And:
        return u" AND ";
    case Operator::Or:
        return u" OR ";
    default:
        return {};
    }
}

/// The letter by which the engine's functions know what a value means.
QStringView typeLetter(ExprType type)
{
    switch (type) {
    case ExprType::Currency:
        return u"'C'";
    case ExprType::Date:
        return u"'F'";
    case ExprType::Bit:
    case ExprType::Condition:
        return u"'B'";
    case ExprType::Text:
        return u"'T'";
    default:
        return u"'N'";
    }
}

} // namespace

/// As it is stored.
void SqlWriter::truth(bool value)
{
    sql_ += QString::number(basic::Value(value).integer());
}

void SqlWriter::parameter(const basic::Value &value)
{
    if (sharing_) {
        const auto it = std::find(parameters_.begin(), parameters_.end(), value);
        if (it != parameters_.end()) {
            sql_ += u'?' + QString::number(it - parameters_.begin() + 1);
            return;
        }
    }
    parameters_.push_back(value);
    sql_ += u'?' + QString::number(parameters_.size());
}

void SqlWriter::value(const Expr &expr)
{
    switch (expr.kind) {
    case ExprKind::Null:
        sql_ += u"NULL";
        return;
    case ExprKind::Boolean:
        truth(expr.literal.truth());
        return;
    case ExprKind::Number:
    case ExprKind::Text:
    case ExprKind::Date:
        parameter(expr.literal);
        return;
    case ExprKind::Name:
        column(expr);
        return;
    case ExprKind::Star:
        sql_ += u'*';
        return;
    case ExprKind::Negate:
        sql_ += u"(-";
        value(*expr.operands[0]);
        sql_ += u')';
        return;
    case ExprKind::Arithmetic:
        arithmetic(expr);
        return;
    case ExprKind::Subquery:
        sql_ += u'(';
        select(*expr.select, true);
        sql_ += u')';
        return;
    case ExprKind::Call:
        if (expr.type != ExprType::Condition) {
            call(expr);
            return;
        }
        break;
    default:
        break;
    }
    // A truth that is used as a value is -1, the engine's own is 1.
    sql_ += u"(-";
    condition(expr);
    sql_ += u')';
}

void SqlWriter::collated(const Expr &expr)
{
    value(expr);
    if (expr.type == ExprType::Text && !isColumnOfTable(expr))
        sql_ += collation;
}

void SqlWriter::condition(const Expr &expr)
{
    switch (expr.kind) {
    case ExprKind::Boolean:
        // The keyword, unlike the number, lets the engine drop a condition that a filter left open.
        sql_ += expr.literal.truth() ? u"TRUE" : u"FALSE";
        return;
    case ExprKind::Not:
        sql_ += u"(NOT ";
        condition(*expr.operands[0]);
        sql_ += u')';
        return;
    case ExprKind::Logic:
        sql_ += u'(';
        if (expr.op == Operator::Xor) {
            sql_ += u'(';
            condition(*expr.operands[0]);
            sql_ += u" <> 0) <> (";
            condition(*expr.operands[1]);
            sql_ += u" <> 0)";
        } else {
            condition(*expr.operands[0]);
            sql_ += engineOperator(expr.op);
            condition(*expr.operands[1]);
        }
        sql_ += u')';
        return;
    case ExprKind::Compare:
        comparison(expr);
        return;
    case ExprKind::Like:
        like(expr);
        return;
    case ExprKind::Between:
        between(expr);
        return;
    case ExprKind::In:
        in(expr);
        return;
    case ExprKind::IsNull:
        sql_ += u'(';
        value(*expr.operands[0]);
        sql_ += expr.negated ? u" IS NOT NULL)" : u" IS NULL)";
        return;
    case ExprKind::Exists:
        sql_ += u"EXISTS (";
        select(*expr.select, true);
        sql_ += u')';
        return;
    case ExprKind::Call:
        call(expr);
        return;
    default:
        value(expr);
    }
}

void SqlWriter::compared(const Expr &operand, const Expr &other)
{
    if (other.type == ExprType::Currency && operand.type != ExprType::Currency &&
        operand.type != ExprType::Null) {
        sql_ += u'(';
        value(operand);
        sql_ += u" * 10000)";
        return;
    }
    value(operand);
}

void SqlWriter::comparison(const Expr &expr)
{
    const Expr &a = *expr.operands[0];
    const Expr &b = *expr.operands[1];
    sql_ += u'(';
    compared(a, b);
    sql_ += engineOperator(expr.op);
    compared(b, a);
    if (a.type == ExprType::Text && !isColumnOfTable(a) && !isColumnOfTable(b))
        sql_ += collation;
    sql_ += u')';
}

void SqlWriter::between(const Expr &expr)
{
    const Expr &operand = *expr.operands[0];
    sql_ += u'(';
    compared(operand, *expr.operands[1]);
    if (operand.type == ExprType::Text && !isColumnOfTable(operand))
        sql_ += collation;
    sql_ += expr.negated ? u" NOT BETWEEN " : u" BETWEEN ";
    compared(*expr.operands[1], operand);
    sql_ += u" AND ";
    compared(*expr.operands[2], operand);
    sql_ += u')';
}

void SqlWriter::in(const Expr &expr)
{
    const Expr &operand = *expr.operands[0];
    sql_ += u'(';
    collated(operand);
    sql_ += expr.negated ? u" NOT IN (" : u" IN (";
    if (expr.select) {
        select(*expr.select, true);
    } else {
        for (size_t i = 1; i < expr.operands.size(); ++i) {
            if (i > 1)
                sql_ += u", ";
            compared(*expr.operands[i], operand);
        }
    }
    sql_ += u"))";
}

void SqlWriter::like(const Expr &expr)
{
    if (expr.negated)
        sql_ += u"(NOT ";
    sql_ += u"d_como(";
    asText(*expr.operands[1]);
    sql_ += u", ";
    asText(*expr.operands[0]);
    sql_ += expr.negated ? u"))" : u")";
}

void SqlWriter::arithmetic(const Expr &expr)
{
    const Expr &a = *expr.operands[0];
    const Expr &b = *expr.operands[1];
    const auto infix = [&](QStringView op, ExprType as) {
        sql_ += u'(';
        operand(a, as);
        sql_ += op;
        operand(b, as);
        sql_ += u')';
    };
    switch (expr.op) {
    case Operator::Join:
        sql_ += u"(coalesce(";
        asText(a);
        sql_ += u", '') || coalesce(";
        asText(b);
        sql_ += u", ''))";
        return;
    case Operator::Add:
        if (expr.type == ExprType::Text) {
            infix(u" || ", ExprType::Text);
            return;
        }
        break;
    case Operator::Multiply:
        if (a.type == ExprType::Currency && b.type == ExprType::Currency) {
            sql_ += u"CAST(d_redondeo(";
            infix(u" * ", ExprType::Currency);
            sql_ += u" / 10000.0) AS INTEGER)";
        } else if (expr.type == ExprType::Currency) {
            sql_ += u'(';
            value(a);
            sql_ += u" * ";
            value(b);
            sql_ += u')';
        } else {
            infix(u" * ", ExprType::Double);
        }
        return;
    case Operator::Divide:
        sql_ += u"(1.0 * ";
        asNumber(a);
        sql_ += u" / ";
        asNumber(b);
        sql_ += u')';
        return;
    case Operator::IntDivide:
    case Operator::Modulo:
        sql_ += u"(d_redondeo(";
        asNumber(a);
        sql_ += expr.op == Operator::Modulo ? u") % d_redondeo(" : u") / d_redondeo(";
        asNumber(b);
        sql_ += u"))";
        return;
    case Operator::Power:
        sql_ += u"d_potencia(";
        asNumber(a);
        sql_ += u", ";
        asNumber(b);
        sql_ += u')';
        return;
    default:
        break;
    }
    infix(engineOperator(expr.op), expr.type == ExprType::Currency ? ExprType::Currency : ExprType::Double);
}

void SqlWriter::operand(const Expr &expr, ExprType as)
{
    switch (as) {
    case ExprType::Text:
        asText(expr);
        break;
    case ExprType::Currency:
        asCurrency(expr);
        break;
    case ExprType::Date:
        asDate(expr);
        break;
    case ExprType::Double:
    case ExprType::Integer:
        asNumber(expr);
        break;
    default:
        value(expr);
    }
}

void SqlWriter::asText(const Expr &expr)
{
    switch (expr.type) {
    case ExprType::Null:
    case ExprType::Text:
        value(expr);
        return;
    case ExprType::Integer:
        sql_ += u"CAST(";
        value(expr);
        sql_ += u" AS TEXT)";
        return;
    default:
        sql_ += u"d_texto(";
        sql_ += typeLetter(expr.type);
        sql_ += u", ";
        value(expr);
        sql_ += u')';
    }
}

void SqlWriter::asNumber(const Expr &expr)
{
    switch (expr.type) {
    case ExprType::Text:
        sql_ += u"d_numero(";
        value(expr);
        sql_ += u')';
        return;
    case ExprType::Currency:
        sql_ += u'(';
        value(expr);
        sql_ += u" / 10000.0)";
        return;
    default:
        value(expr);
    }
}

void SqlWriter::asDate(const Expr &expr)
{
    if (expr.type != ExprType::Text) {
        asNumber(expr);
        return;
    }
    sql_ += u"d_cdate(";
    value(expr);
    sql_ += u')';
}

void SqlWriter::asCurrency(const Expr &expr)
{
    switch (expr.type) {
    case ExprType::Currency:
    case ExprType::Null:
        value(expr);
        return;
    case ExprType::Integer:
    case ExprType::Bit:
    case ExprType::Condition:
        sql_ += u'(';
        value(expr);
        sql_ += u" * 10000)";
        return;
    default:
        sql_ += u"d_redondeo(";
        asNumber(expr);
        sql_ += u" * 10000.0)";
    }
}

void SqlWriter::assigned(const Expr &expr, const FieldDef &field)
{
    if (expr.isLiteral()) {
        expr.type == ExprType::Null ? void(sql_ += u"NULL") : parameter(expr.literal);
        return;
    }
    switch (field.type) {
    case FieldType::Text:
        sql_ += u"d_ajusta(";
        asText(expr);
        sql_ += u", "_s + QString::number(field.size) + u')';
        return;
    case FieldType::Counter:
    case FieldType::Long:
    case FieldType::Integer:
        sql_ += u"d_entero(";
        asNumber(expr);
        sql_ += field.type == FieldType::Integer ? u", 32767)" : u", 2147483647)";
        return;
    case FieldType::Bit:
        sql_ += u"(-coalesce(";
        asNumber(expr);
        sql_ += u" <> 0, 0))";
        return;
    default:
        operand(expr, exprTypeOf(field.type));
    }
}

/// What a function does with an operand before it looks at it.
void SqlWriter::callOperand(const Expr &call, size_t i)
{
    const FunctionDef &function = functions()[static_cast<size_t>(call.function)];
    const Expr &expr = *call.operands[i];
    switch (function.takes) {
    case Takes::Text:
        asText(expr);
        return;
    case Takes::Number:
        asNumber(expr);
        return;
    case Takes::Date:
        asDate(expr);
        return;
    case Takes::Condition:
        condition(expr);
        return;
    case Takes::Any:
        break;
    }
    // The few whose operands differ in kind.
    if (sameName(function.name, u"IIf")) {
        i == 0 ? condition(expr) : operand(expr, call.type);
    } else if (sameName(function.name, u"Nz")) {
        operand(expr, call.type);
    } else if (sameName(function.name, u"DateDiff")) {
        i == 0 ? asText(expr) : asDate(expr);
    } else if (sameName(function.name, u"DateAdd")) {
        i == 0 ? asText(expr) : i == 1 ? asNumber(expr) : asDate(expr);
    } else if (sameName(function.name, u"InStr")) {
        i == 0 && call.operands.size() == 3 ? asNumber(expr) : asText(expr);
    } else if (function.yields == Yields::Text && !sameName(function.name, u"Format")) {
        i == 0 ? asText(expr) : asNumber(expr);
    } else if (function.yields == Yields::Sum || function.yields == Yields::Average) {
        expr.type == ExprType::Text ? asNumber(expr) : value(expr);
    } else {
        function.aggregate &&expr.kind != ExprKind::Star ? collated(expr) : value(expr);
    }
}

void SqlWriter::call(const Expr &expr)
{
    const FunctionDef &function = functions()[static_cast<size_t>(expr.function)];
    const QStringView text = functionText(expr.function);
    if (const qsizetype at = text.indexOf(u"%1"); at >= 0) {
        sql_ += text.first(at);
        callOperand(expr, 0);
        sql_ += text.sliced(at + 2);
        return;
    }
    const bool roundsMoney = function.yields == Yields::Average && expr.type == ExprType::Currency;
    if (roundsMoney)
        sql_ += u"d_redondeo(";
    sql_ += text;
    sql_ += u'(';
    if (sameName(function.name, u"Format"))
        sql_ += typeLetter(expr.operands[0]->type).toString() + u", "_s;
    for (size_t i = 0; i < expr.operands.size(); ++i) {
        if (i > 0)
            sql_ += u", ";
        callOperand(expr, i);
    }
    sql_ += roundsMoney ? u"))" : u")";
}

} // namespace dao
