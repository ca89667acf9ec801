#include "guion/compare.h"

#include "platform/basic/runtime.h"

#include <functional>
#include <map>

namespace guion
{

namespace
{

QString dateForm(basic::Date date)
{
    const QString time = date.time().toString(u"HH:mm:ss");
    if (date.wholeDays() == 0)
        return time;
    const QString day = date.date().toString(Qt::ISODate);
    return date.time() == QTime(0, 0) ? day : day + u' ' + time;
}

} // namespace

QString scriptForm(bool truth)
{
    return truth ? QStringLiteral("si") : QStringLiteral("no");
}

QString scriptForm(const basic::Value &value)
{
    using Kind = basic::Value::Kind;
    switch (value.kind()) {
    case Kind::Null:
        return QStringLiteral("<Null>");
    case Kind::Bit:
        return scriptForm(value.truth());
    case Kind::Date:
        return dateForm(value.date());
    case Kind::Double:
    case Kind::Currency:
        return basic::sqlNumber(value.number());
    case Kind::Empty:
    case Kind::Long:
    case Kind::Text:
        break;
    }
    return value.text();
}

bool holds(const QString &actual, const QString &op, const Word &expected)
{
    if (op == u"contiene")
        return actual.contains(expected.text);
    bool numbers = !expected.quoted;
    bool ok = false;
    const double left = actual.toDouble(&ok);
    numbers = numbers && ok;
    const double right = expected.text.toDouble(&ok);
    numbers = numbers && ok;
    const auto order =
        numbers ? (left <=> right) : std::partial_ordering(actual.compare(expected.text) <=> 0);
    using Test = std::function<bool(std::partial_ordering)>;
    static const std::map<QString, Test> tests{
        {"==", [](auto o) { return o == 0; }}, {"!=", [](auto o) { return o != 0; }},
        {"<", [](auto o) { return o < 0; }},   {">", [](auto o) { return o > 0; }},
        {"<=", [](auto o) { return o <= 0; }}, {">=", [](auto o) { return o >= 0; }},
    };
    const auto test = tests.find(op);
    if (test == tests.end())
        throw Failure(QStringLiteral("%1 is no comparison").arg(op));
    return test->second(order);
}

} // namespace guion
