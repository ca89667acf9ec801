#include "platform/basic/value.h"

#include "platform/basic/runtime.h"

#include <cmath>

namespace basic
{

namespace
{

constexpr QDate epoch = QDate::fromJulianDay(2415019); // 1899-12-30, known before anything runs
constexpr int secondsPerDay = 86400;

template <class... Cases>
struct Match : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Match(Cases...) -> Match<Cases...>;

} // namespace

Date::Date(QDate date, QTime time)
    : days_(date.isValid() ? epoch.daysTo(date) : 0),
      seconds_(time.isValid() ? time.msecsSinceStartOfDay() / 1000 : 0)
{
}

qint64 nearestWhole(double number)
{
    constexpr double beyond = 9223372036854775808.0; // 2^63
    if (std::isnan(number))
        return 0;
    const double rounded = std::nearbyint(number);
    if (rounded >= beyond)
        return std::numeric_limits<qint64>::max();
    return rounded < -beyond ? std::numeric_limits<qint64>::min() : static_cast<qint64>(rounded);
}

Date Date::fromSerial(double serial)
{
    // The calendar of the practice: years 100 to 9999. What lies beyond stands at its edge.
    constexpr double firstDay = -657434;
    constexpr double lastDay = 2958465;
    Date date;
    serial = std::isnan(serial) ? 0 : std::clamp(serial, firstDay, lastDay);
    double days = std::floor(serial);
    auto seconds = static_cast<int>(std::lround((serial - days) * secondsPerDay));
    if (seconds == secondsPerDay) {
        days += 1;
        seconds = 0;
    }
    date.days_ = static_cast<qint64>(days);
    date.seconds_ = seconds;
    return date;
}

double Date::serial() const
{
    return static_cast<double>(days_) + static_cast<double>(seconds_) / secondsPerDay;
}

QDate Date::date() const
{
    return epoch.addDays(days_);
}

QTime Date::time() const
{
    return QTime::fromMSecsSinceStartOfDay(seconds_ * 1000);
}

Currency Currency::fromUnits(qint64 tenThousandths)
{
    Currency c;
    c.units_ = tenThousandths;
    return c;
}

Currency Currency::fromDouble(double amount)
{
    return fromUnits(nearestWhole(amount * 10000.0));
}

bool Value::isBlank() const
{
    const auto *text = as<QString>();
    return isNull() || isEmpty() || (text && text->isEmpty());
}

bool Value::isNumeric() const
{
    switch (kind()) {
    case Kind::Empty:
    case Kind::Null:
    case Kind::Date:
        return kind() == Kind::Empty;
    case Kind::Text:
        return basic::isNumeric(*as<QString>());
    default:
        return true;
    }
}

QString Value::text() const
{
    return std::visit(Match{
                          [](std::monostate) { return QString(); },
                          [](basic::Null) { return QString(); },
                          [](bool b) { return b ? QStringLiteral("Verdadero") : QStringLiteral("Falso"); },
                          [](qint64 n) { return QString::number(n); },
                          [](double d) { return sqlNumber(d).replace(u'.', u','); },
                          [](basic::Currency c) { return sqlNumber(c.toDouble()).replace(u'.', u','); },
                          [](basic::Date d) { return dateText(d); },
                          [](const QString &s) { return s; },
                      },
                      data_);
}

double Value::number() const
{
    return std::visit(Match{
                          [](std::monostate) { return 0.0; },
                          [](basic::Null) { return 0.0; },
                          [](bool b) { return b ? -1.0 : 0.0; },
                          [](qint64 n) { return static_cast<double>(n); },
                          [](double d) { return d; },
                          [](basic::Currency c) { return c.toDouble(); },
                          [](basic::Date d) { return d.serial(); },
                          [](const QString &s) { return toNumber(s).value_or(0.0); },
                      },
                      data_);
}

qint64 Value::integer() const
{
    if (const auto *n = as<qint64>())
        return *n;
    return nearestWhole(number());
}

bool Value::truth() const
{
    return number() != 0.0;
}

basic::Date Value::date() const
{
    if (const auto *d = as<basic::Date>())
        return *d;
    if (const auto *s = as<QString>())
        return toDate(*s).value_or(basic::Date());
    return basic::Date::fromSerial(number());
}

basic::Currency Value::currency() const
{
    if (const auto *c = as<basic::Currency>())
        return *c;
    return basic::Currency::fromDouble(number());
}

} // namespace basic
