// Reading and writing numbers as texts.
#include "platform/basic/runtime.h"

#include <cmath>

namespace basic
{

namespace
{

/// Turns a text of the locale into one with a plain decimal point; empty when it is no number. Points that
/// group digits in threes are thousands marks; a lone point elsewhere is what the numeric keypad types for
/// the decimal comma, and so it is behind a zero, which no thousands begin with.
QString plainNumber(QStringView text)
{
    QString s = text.trimmed().toString();
    bool negative = false;
    if (s.startsWith(u'(') && s.endsWith(u')')) {
        negative = true;
        s = s.mid(1, s.size() - 2).trimmed();
    }
    for (bool again = true; again && !s.isEmpty();) {
        again = false;
        if (s.startsWith(u'$') || s.startsWith(u'+') || s.startsWith(u'-')) {
            negative = negative != s.startsWith(u'-');
            s = s.mid(1).trimmed();
            again = true;
        }
    }
    if (s.endsWith(u'$'))
        s = s.chopped(1).trimmed();

    const qsizetype comma = s.indexOf(u',');
    QString whole = comma < 0 ? s : s.left(comma);
    QString rest = comma < 0 ? QString() : s.mid(comma + 1);
    if (rest.contains(u',') || rest.contains(u'.'))
        return {};

    if (const QStringList groups = whole.split(u'.'); groups.size() > 1) {
        bool thousands = !groups.first().isEmpty() && groups.first().size() <= 3 && groups.first() != u"0";
        for (qsizetype i = 1; i < groups.size(); ++i)
            thousands = thousands && groups.at(i).size() == 3;
        if (thousands) {
            whole = groups.join(QString());
        } else if (groups.size() == 2 && comma < 0) {
            whole = groups.first();
            rest = groups.last();
        } else {
            return {};
        }
    }
    const QString plain = rest.isEmpty() ? whole : whole + u'.' + rest;
    return negative ? u'-' + plain : plain;
}

} // namespace

std::optional<double> toNumber(QStringView text)
{
    const QString plain = plainNumber(text);
    for (const QChar c : plain)
        if (!c.isDigit() && !QStringView(u"+-.eEdD").contains(c))
            return std::nullopt;
    bool ok = false;
    const double number = QString(plain).replace(u'd', u'e').replace(u'D', u'e').toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

bool isNumeric(QStringView text)
{
    return toNumber(text).has_value();
}

double val(QStringView text)
{
    QString number;
    bool point = false;
    bool exponent = false;
    for (const QChar c : text) {
        if (c.isSpace())
            continue;
        const bool sign = c == u'+' || c == u'-';
        if (c >= u'0' && c <= u'9') {
            number += c;
        } else if (sign && (number.isEmpty() || number.endsWith(u'e'))) {
            number += c;
        } else if (c == u'.' && !point && !exponent) {
            point = true;
            number += c;
        } else if ((c.toLower() == u'e' || c.toLower() == u'd') && !exponent && !number.isEmpty()) {
            exponent = true;
            number += u'e';
        } else {
            break;
        }
    }
    while (!number.isEmpty() && !number.back().isDigit() && number.back() != u'.')
        number.chop(1);
    return number.toDouble();
}

QString str(double number)
{
    const QString text = sqlNumber(number);
    return number < 0 ? text : u' ' + text;
}

qint64 intPart(double number)
{
    return nearestWhole(std::floor(number));
}

qint64 fixPart(double number)
{
    return nearestWhole(std::trunc(number));
}

QString sqlNumber(double number)
{
    if (number == std::floor(number) && std::fabs(number) < 1e15)
        return QString::number(static_cast<qint64>(number));
    return QString::number(number, 'g', 15);
}

} // namespace basic
