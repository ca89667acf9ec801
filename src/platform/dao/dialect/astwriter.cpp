#include "platform/dao/dialect/ast.h"

#include "platform/dao/dialect/types.h"

#include <QLocale>

namespace dao
{

namespace
{

QString quotedName(const QString &name)
{
    return u'[' + name + u']';
}

QString literalText(const Expr &e)
{
    switch (e.kind) {
    case ExprKind::Null:
        return QStringLiteral("NULL");
    case ExprKind::Boolean:
        return e.literal.truth() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    case ExprKind::Text:
        return u'\'' + e.literal.text().replace(u'\'', QStringLiteral("''")) + u'\'';
    case ExprKind::Date: {
        const basic::Date date = e.literal.date();
        return u'#' + QLocale::c().toString(date.date(), u"MM/dd/yyyy") +
               QLocale::c().toString(date.time(), u" HH:mm:ss") + u'#';
    }
    default: {
        if (const auto *whole = e.literal.as<qint64>())
            return QString::number(*whole);
        const QString text = QString::number(e.literal.number(), 'g', 17);
        return text.contains(u'.') || text.contains(u'e') ? text : text + QStringLiteral(".0");
    }
    }
}

QStringView operatorText(Operator op)
{
    switch (op) {
    case Operator::Add:
        return u"+";
    case Operator::Subtract:
        return u"-";
    case Operator::Multiply:
        return u"*";
    case Operator::Divide:
        return u"/";
    case Operator::IntDivide:
        return u"\\";
    case Operator::Modulo:
        return u"MOD";
    case Operator::Power:
        return u"^";
    case Operator::Join:
        return u"&";
    case Operator::Equal:
        return u"=";
    case Operator::NotEqual:
        return u"<>";
    case Operator::Less:
        return u"<";
    case Operator::LessEqual:
        return u"<=";
    case Operator::Greater:
        return u">";
    case Operator::GreaterEqual:
        return u">=";
    case Operator::And:
        return u"AND";
    case Operator::Or:
        return u"OR";
    case Operator::Xor:
        return u"XOR";
    case Operator::None:
        break;
    }
    return {};
}

template <class List, class ToText>
QString joined(const List &list, ToText &&text)
{
    QStringList parts;
    for (const auto &item : list)
        parts << text(item);
    return parts.join(QStringLiteral(", "));
}

QString expressions(const std::vector<ExprPtr> &list)
{
    return joined(list, [](const ExprPtr &e) { return toText(*e); });
}

QString qualified(const Expr &e, const QString &last)
{
    return e.qualifier.isEmpty() ? last : quotedName(e.qualifier) + u'.' + last;
}

QString fromText(const TableRef &ref)
{
    if (ref.join == JoinKind::None)
        return quotedName(ref.name) +
               (ref.alias.isEmpty() ? QString() : QStringLiteral(" AS ") + quotedName(ref.alias));
    const QString kind = ref.join == JoinKind::Inner  ? QStringLiteral(" INNER JOIN ")
                         : ref.join == JoinKind::Left ? QStringLiteral(" LEFT JOIN ")
                                                      : QStringLiteral(" RIGHT JOIN ");
    return u'(' + fromText(*ref.left) + kind + fromText(*ref.right) + QStringLiteral(" ON ") +
           toText(*ref.on) + u')';
}

QString whereText(const ExprPtr &where)
{
    return where ? QStringLiteral(" WHERE ") + toText(*where) : QString();
}

QString memberText(const Select &s)
{
    QString text = QStringLiteral("SELECT ");
    if (s.distinct)
        text += QStringLiteral("DISTINCT ");
    if (s.top >= 0)
        text += QStringLiteral("TOP %1 ").arg(s.top);
    text += joined(s.items, [](const SelectItem &item) {
        return toText(*item.expr) +
               (item.alias.isEmpty() ? QString() : QStringLiteral(" AS ") + quotedName(item.alias));
    });
    if (!s.from.empty())
        text += QStringLiteral(" FROM ") + joined(s.from, [](const auto &ref) { return fromText(*ref); });
    text += whereText(s.where);
    if (!s.groupBy.empty())
        text += QStringLiteral(" GROUP BY ") + expressions(s.groupBy);
    if (s.having)
        text += QStringLiteral(" HAVING ") + toText(*s.having);
    return text;
}

QString columnText(const FieldDef &column)
{
    return quotedName(column.name) + u' ' + typeText(column);
}

QString nameList(const QStringList &names)
{
    return joined(names, quotedName);
}

struct StatementText {
    QString operator()(const SelectPtr &s) const { return toText(*s); }
    QString operator()(const Insert &s) const
    {
        QString text = QStringLiteral("INSERT INTO ") + quotedName(s.table);
        if (!s.columns.empty())
            text += QStringLiteral(" (") + joined(s.columns, quotedName) + u')';
        return s.select ? text + u' ' + toText(*s.select)
                        : text + QStringLiteral(" VALUES (") + expressions(s.values) + u')';
    }
    QString operator()(const Update &s) const
    {
        return QStringLiteral("UPDATE ") + quotedName(s.table) + QStringLiteral(" SET ") +
               joined(s.assignments,
                      [](const Assignment &a) {
                          return quotedName(a.column) + QStringLiteral(" = ") + toText(*a.value);
                      }) +
               whereText(s.where);
    }
    QString operator()(const Delete &s) const
    {
        return QStringLiteral("DELETE * FROM ") + quotedName(s.table) + whereText(s.where);
    }
    QString operator()(const CreateTable &s) const
    {
        return QStringLiteral("CREATE TABLE ") + quotedName(s.table) + QStringLiteral(" (") +
               joined(s.columns, columnText) + u')';
    }
    QString operator()(const DropTable &s) const
    {
        return QStringLiteral("DROP TABLE ") + quotedName(s.table);
    }
    QString operator()(const CreateIndex &s) const
    {
        return (s.index.unique ? QStringLiteral("CREATE UNIQUE INDEX ") : QStringLiteral("CREATE INDEX ")) +
               quotedName(s.index.name) + QStringLiteral(" ON ") + quotedName(s.table) +
               QStringLiteral(" (") + nameList(s.index.fields) +
               (s.index.primary && s.index.unique ? QStringLiteral(") WITH PRIMARY") : QStringLiteral(")"));
    }
    QString operator()(const DropIndex &s) const
    {
        return QStringLiteral("DROP INDEX ") + quotedName(s.index) + QStringLiteral(" ON ") +
               quotedName(s.table);
    }
    QString operator()(const AddColumn &s) const
    {
        return QStringLiteral("ALTER TABLE ") + quotedName(s.table) + QStringLiteral(" ADD COLUMN ") +
               columnText(s.column);
    }
    QString operator()(const DropColumn &s) const
    {
        return QStringLiteral("ALTER TABLE ") + quotedName(s.table) + QStringLiteral(" DROP COLUMN ") +
               quotedName(s.column);
    }
};

} // namespace

QString toText(const Expr &e)
{
    const auto operand = [&](size_t i) { return toText(*e.operands[i]); };
    const QString no = e.negated ? QStringLiteral(" NOT") : QString();
    switch (e.kind) {
    case ExprKind::Name:
        return qualified(e, quotedName(e.name));
    case ExprKind::Star:
        return qualified(e, QStringLiteral("*"));
    case ExprKind::Negate:
        return QStringLiteral("(-") + operand(0) + u')';
    case ExprKind::Not:
        return QStringLiteral("(NOT ") + operand(0) + u')';
    case ExprKind::Arithmetic:
    case ExprKind::Compare:
    case ExprKind::Logic:
        return u'(' + operand(0) + u' ' + operatorText(e.op).toString() + u' ' + operand(1) + u')';
    case ExprKind::Like:
        return u'(' + operand(0) + no + QStringLiteral(" LIKE ") + operand(1) + u')';
    case ExprKind::Between:
        return u'(' + operand(0) + no + QStringLiteral(" BETWEEN ") + operand(1) + QStringLiteral(" AND ") +
               operand(2) + u')';
    case ExprKind::In: {
        QStringList list;
        for (size_t i = 1; i < e.operands.size(); ++i)
            list << operand(i);
        return u'(' + operand(0) + no + QStringLiteral(" IN (") +
               (e.select ? toText(*e.select) : list.join(QStringLiteral(", "))) + QStringLiteral("))");
    }
    case ExprKind::IsNull:
        return u'(' + operand(0) + QStringLiteral(" IS") + no + QStringLiteral(" NULL)");
    case ExprKind::Call:
        return e.name + u'(' + expressions(e.operands) + u')';
    case ExprKind::Subquery:
        return u'(' + toText(*e.select) + u')';
    case ExprKind::Exists:
        return QStringLiteral("EXISTS (") + toText(*e.select) + u')';
    default:
        return literalText(e);
    }
}

QString toText(const Select &s)
{
    QString text = memberText(s);
    for (const auto &member : s.unions)
        text += (member->unionAll ? QStringLiteral(" UNION ALL ") : QStringLiteral(" UNION ")) +
                memberText(*member);
    if (!s.orderBy.empty())
        text += QStringLiteral(" ORDER BY ") + joined(s.orderBy, [](const OrderItem &item) {
                    return toText(*item.expr) + (item.descending ? QStringLiteral(" DESC") : QString());
                });
    return text;
}

QString toText(const Statement &statement)
{
    return std::visit(StatementText(), statement);
}

} // namespace dao
