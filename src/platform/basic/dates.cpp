// Reading and writing dates, and reckoning with them.
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace basic
{

namespace
{

constexpr std::array<QStringView, 12> monthStems = {u"ene", u"feb", u"mar", u"abr", u"may", u"jun",
                                                    u"jul", u"ago", u"se",  u"oct", u"nov", u"dic"};

int monthNamed(const QString &word)
{
    for (std::size_t i = 0; i < monthStems.size(); ++i)
        if (word.startsWith(monthStems[i], Qt::CaseInsensitive))
            return static_cast<int>(i) + 1;
    return 0;
}

/// Years of two digits: up to 29 they are of this century, from 30 on of the last.
int fullYear(const QString &digits)
{
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

QDate dayMonthYear(int day, int month, int year)
{
    if (const QDate date(year, month, day); date.isValid())
        return date;
    return QDate(year, day, month); // month first, when the day first makes no date
}

QDate readDate(const QString &text)
{
    static const QRegularExpression yearFirst(QStringLiteral("^(\\d{4})[-/](\\d{1,2})[-/](\\d{1,2})$"));
    static const QRegularExpression dayFirst(
        QStringLiteral("^(\\d{1,2})[-/.](\\d{1,2})(?:[-/.](\\d{2}|\\d{4}))?$"));
    static const QRegularExpression named(
        QStringLiteral("^(\\d{1,2})[ -/]+(?:de +)?(\\p{L}+)\\.?[ -/]+(?:del? +)?(\\d{2}|\\d{4})$"));

    if (const auto m = yearFirst.match(text); m.hasMatch())
        return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    if (const auto m = dayFirst.match(text); m.hasMatch()) {
        const int year = m.captured(3).isEmpty() ? today().date().year() : fullYear(m.captured(3));
        return dayMonthYear(m.captured(1).toInt(), m.captured(2).toInt(), year);
    }
    if (const auto m = named.match(text); m.hasMatch())
        return QDate(fullYear(m.captured(3)), monthNamed(m.captured(2)), m.captured(1).toInt());
    return {};
}

QTime readTime(const QString &text)
{
    static const QRegularExpression clock(
        QStringLiteral("^(\\d{1,2}):(\\d{1,2})(?::(\\d{1,2}))?(?: *([ap])\\.? ?m\\.?)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto m = clock.match(text);
    if (!m.hasMatch())
        return {};
    int hour = m.captured(1).toInt();
    if (!m.captured(4).isEmpty()) {
        if (hour < 1 || hour > 12)
            return {};
        hour = hour % 12 + (m.captured(4).toLower() == u"p" ? 12 : 0);
    }
    return QTime(hour, m.captured(2).toInt(), m.captured(3).toInt());
}

qint64 monthsOf(Date date)
{
    return date.date().year() * 12LL + date.date().month();
}

qint64 secondsOf(Date date)
{
    return date.wholeDays() * 86400 + date.time().msecsSinceStartOfDay() / 1000;
}

} // namespace

std::optional<Date> toDate(QStringView text)
{
    const QString s = text.trimmed().toString();
    if (s.isEmpty())
        return std::nullopt;
    if (const QTime alone = readTime(s); alone.isValid())
        return Date(alone);
    if (const QDate alone = readDate(s); alone.isValid())
        return Date(alone);
    for (qsizetype blank = s.indexOf(u' '); blank > 0; blank = s.indexOf(u' ', blank + 1)) {
        const QDate date = readDate(s.left(blank).trimmed());
        const QTime time = readTime(s.mid(blank + 1).trimmed());
        if (date.isValid() && time.isValid())
            return Date(date, time);
    }
    return std::nullopt;
}

bool isDate(QStringView text)
{
    return toDate(text).has_value();
}

QString dateText(Date date)
{
    const bool timeless = date.time() == QTime(0, 0);
    if (date.wholeDays() == 0 && !timeless)
        return date.time().toString(u"HH:mm:ss");
    const QString day = date.date().toString(u"dd/MM/yyyy");
    return timeless ? day : day + date.time().toString(u" HH:mm:ss");
}

QString sqlDate(Date date)
{
    const QString day = date.date().toString(u"MM/dd/yyyy");
    return u'#' + (date.time() == QTime(0, 0) ? day : day + date.time().toString(u" HH:mm:ss")) + u'#';
}

int weekday(Date date)
{
    return date.date().dayOfWeek() % 7 + 1;
}

qint64 dateDiff(QStringView interval, Date from, Date to)
{
    const qint64 days = to.wholeDays() - from.wholeDays();
    if (interval == u"d" || interval == u"y")
        return days;
    if (interval == u"w")
        return days / 7;
    if (interval == u"ww") {
        const qint64 sundayFrom = from.wholeDays() - weekday(from);
        const qint64 sundayTo = to.wholeDays() - weekday(to);
        return (sundayTo - sundayFrom) / 7;
    }
    if (interval == u"m")
        return monthsOf(to) - monthsOf(from);
    if (interval == u"q")
        return (monthsOf(to) - 1) / 3 - (monthsOf(from) - 1) / 3;
    if (interval == u"yyyy")
        return to.date().year() - from.date().year();
    if (interval == u"h")
        return secondsOf(to) / 3600 - secondsOf(from) / 3600;
    if (interval == u"n")
        return secondsOf(to) / 60 - secondsOf(from) / 60;
    return secondsOf(to) - secondsOf(from);
}

Date dateAdd(QStringView interval, int count, Date from)
{
    const QDate day = from.date();
    if (interval == u"h" || interval == u"n" || interval == u"s") {
        const qint64 step = interval == u"h" ? 3600 : interval == u"n" ? 60 : 1;
        const qint64 seconds = secondsOf(from) + step * count;
        return Date::fromSerial(static_cast<double>(seconds) / 86400.0);
    }
    constexpr int beyondTheCalendar = 4'000'000; // days, from its first to its last
    count = std::clamp(count, -beyondTheCalendar, beyondTheCalendar);
    QDate sum = day.addDays(count);
    if (interval == u"m")
        sum = day.addMonths(count);
    else if (interval == u"q")
        sum = day.addMonths(3 * count);
    else if (interval == u"yyyy")
        sum = day.addYears(count);
    else if (interval == u"ww")
        sum = day.addDays(7LL * count);
    return Date::fromSerial(Date(sum, from.time()).serial());
}

double timer()
{
    return now().time().msecsSinceStartOfDay() / 1000.0;
}

} // namespace basic
