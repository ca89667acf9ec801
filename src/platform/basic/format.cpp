// Format: numbers, dates and texts by pattern.
#include "platform/basic/runtime.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

namespace basic
{

namespace
{

constexpr std::array<QStringView, 7> dayNames = {u"domingo", u"lunes",   u"martes", u"miércoles",
                                                 u"jueves",  u"viernes", u"sábado"};
constexpr std::array<QStringView, 12> monthNames = {u"enero",      u"febrero", u"marzo",     u"abril",
                                                    u"mayo",       u"junio",   u"julio",     u"agosto",
                                                    u"septiembre", u"octubre", u"noviembre", u"diciembre"};

QString padded(int number, qsizetype width)
{
    return QString::number(number).rightJustified(width, u'0');
}

bool isDateLetter(QChar c)
{
    return QStringView(u"dmyhns").contains(c.toLower());
}

bool isDatePattern(QStringView pattern)
{
    bool letters = false;
    for (const QChar c : pattern) {
        if (c == u'0' || c == u'#')
            return false;
        letters = letters || isDateLetter(c);
    }
    return letters;
}

QString dateToken(QChar letter, qsizetype length, Date date, bool twelveHours)
{
    const QDate day = date.date();
    const QTime time = date.time();
    const auto monthIndex = static_cast<std::size_t>(day.month() - 1);
    const auto dayIndex = static_cast<std::size_t>(weekday(date) - 1);
    switch (letter.unicode()) {
    case u'd':
        if (length >= 4)
            return dayNames[dayIndex].toString();
        return length == 3 ? dayNames[dayIndex].left(3).toString() : padded(day.day(), length);
    case u'm':
        if (length >= 4)
            return monthNames[monthIndex].toString();
        return length == 3 ? monthNames[monthIndex].left(3).toString() : padded(day.month(), length);
    case u'y':
        return length >= 3 ? padded(day.year(), 4) : padded(day.year() % 100, 2);
    case u'h':
        return padded(twelveHours ? (time.hour() + 11) % 12 + 1 : time.hour(),
                      std::min<qsizetype>(length, 2));
    case u'n':
        return padded(time.minute(), std::min<qsizetype>(length, 2));
    default:
        return padded(time.second(), std::min<qsizetype>(length, 2));
    }
}

/// What stands between quotes, or behind a backslash, is shown as it is.
bool isLiteral(QStringView pattern, qsizetype at)
{
    return pattern[at] == u'"' || (pattern[at] == u'\\' && at + 1 < pattern.size());
}

/// Leaves `at` on the literal's last sign.
QStringView takeLiteral(QStringView pattern, qsizetype &at)
{
    const qsizetype start = at + 1;
    const qsizetype close = pattern[at] == u'"' ? pattern.indexOf(u'"', start) : start + 1;
    const qsizetype end = close < 0 ? pattern.size() : close;
    at = pattern[at] == u'"' ? end : start;
    return pattern.sliced(start, end - start);
}

/// An "m" means minutes right after hours ("HH:MM", "HHMMSS"), months everywhere else.
QString formatDate(Date date, QStringView pattern)
{
    const bool twelveHours = pattern.contains(u"am/pm", Qt::CaseInsensitive);
    QString out;
    bool afterHour = false;
    for (qsizetype i = 0; i < pattern.size();) {
        if (pattern.mid(i).startsWith(u"am/pm", Qt::CaseInsensitive)) {
            out += date.time().hour() < 12 ? u"a.m." : u"p.m.";
            i += 5;
            continue;
        }
        if (isLiteral(pattern, i)) {
            out += takeLiteral(pattern, i);
            ++i;
            continue;
        }
        const QChar letter = pattern[i].toLower();
        if (!isDateLetter(letter)) {
            out += pattern[i++];
            continue;
        }
        qsizetype length = 1;
        while (i + length < pattern.size() && pattern[i + length].toLower() == letter)
            ++length;
        out += dateToken(letter == u'm' && afterHour ? QChar(u'n') : letter, length, date, twelveHours);
        afterHour = letter == u'h';
        i += length;
    }
    return out;
}

QString grouped(const QString &digits)
{
    QString out = digits;
    for (qsizetype i = digits.size() - 3; i > 0; i -= 3)
        out.insert(i, u'.');
    return out;
}

struct NumberPattern {
    QString prefix, suffix;
    qsizetype wholeZeros = 0, decimalZeros = 0, decimals = 0;
    bool point = false, thousands = false, percent = false, digits = false;
};

NumberPattern readNumberPattern(QStringView pattern)
{
    NumberPattern p;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        QString &literal = p.digits ? p.suffix : p.prefix;
        if (c == u'0' || c == u'#') {
            p.digits = true;
            if (p.point) {
                ++p.decimals;
                if (c == u'0')
                    p.decimalZeros = p.decimals;
            } else if (c == u'0' || p.wholeZeros > 0) {
                ++p.wholeZeros;
            }
        } else if (c == u'.' && !p.point) {
            p.point = true;
        } else if (c == u',' && p.digits && !p.point) {
            p.thousands = true;
        } else if (isLiteral(pattern, i)) {
            literal += takeLiteral(pattern, i);
        } else {
            p.percent = p.percent || c == u'%';
            literal += c;
        }
    }
    return p;
}

QString formatNumber(double number, QStringView pattern)
{
    const NumberPattern p = readNumberPattern(pattern);
    if (!p.digits)
        return p.prefix;
    const double scaled = std::fabs(p.percent ? number * 100 : number);
    QString text = QString::number(scaled, 'f', static_cast<int>(p.decimals));
    // The nearest decimal is taken half away from zero, as sums on paper are, not by the binary tail.
    if (p.decimals < 10) {
        const double unit = std::pow(10.0, static_cast<double>(p.decimals));
        text = QString::number(std::floor(scaled * unit * (1 + 4e-16) + 0.5) / unit, 'f',
                               static_cast<int>(p.decimals));
    }
    QString whole = text.section(u'.', 0, 0);
    QString decimals = text.section(u'.', 1);
    if (whole == u"0")
        whole.clear();
    whole = whole.rightJustified(p.wholeZeros, u'0');
    while (decimals.size() > p.decimalZeros && decimals.endsWith(u'0'))
        decimals.chop(1);
    const bool shown = !whole.isEmpty() || !decimals.isEmpty();
    const bool zero = !QString(whole + decimals).contains(QRegularExpression(QStringLiteral("[1-9]")));
    QString out = number < 0 && shown && !zero ? QStringLiteral("-") : QString();
    out += p.prefix + (p.thousands ? grouped(whole) : whole);
    if (p.point)
        out += u',' + decimals;
    return out + p.suffix;
}

/// Sections "positive;negative;zero", each optional.
QString formatSections(double number, QStringView pattern)
{
    const QList<QStringView> sections = pattern.split(u';');
    if (number < 0 && sections.size() > 1 && !sections[1].isEmpty())
        return formatNumber(-number, sections[1]);
    if (number == 0 && sections.size() > 2 && !sections[2].isEmpty())
        return formatNumber(0, sections[2]);
    return formatNumber(number, sections[0]);
}

struct NamedPattern {
    QStringView name, pattern;
};
constexpr NamedPattern namedPatterns[] = {
    {u"currency", u"\\$ #,##0.00"}, {u"fixed", u"0.00"},
    {u"standard", u"#,##0.00"},     {u"percent", u"0.00%"},
    {u"short date", u"dd/mm/yyyy"}, {u"short time", u"HH:NN"},
    {u"medium date", u"dd-mmm-yy"}, {u"long time", u"HH:NN:SS"},
};

} // namespace

QString format(const Value &value, QStringView pattern)
{
    if (value.isNull() || value.isEmpty())
        return {};
    if (pattern.isEmpty() || pattern.compare(u"general number", Qt::CaseInsensitive) == 0)
        return value.text();
    if (pattern.compare(u"long date", Qt::CaseInsensitive) == 0) {
        const Date date = value.date();
        return QStringLiteral("%1 de %2 de %3")
            .arg(formatDate(date, u"dddd d"), formatDate(date, u"mmmm"), formatDate(date, u"yyyy"));
    }
    for (const NamedPattern &named : namedPatterns)
        if (pattern.compare(named.name, Qt::CaseInsensitive) == 0)
            return format(value, named.pattern);

    const auto *text = value.as<QString>();
    if (isDatePattern(pattern)) {
        if (text && !isDate(*text))
            return *text;
        return formatDate(value.date(), pattern);
    }
    if (text && !isNumeric(*text))
        return *text;
    return formatSections(value.number(), pattern);
}

} // namespace basic
