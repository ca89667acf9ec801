#include "platform/basic/typeddate.h"

#include <QRegularExpression>

namespace basic
{

namespace
{

constexpr int yearsAhead = 20;

/// The year that ends in these two digits and lies nearest, as people write theirs.
int fullYear(int twoDigits, int thisYear)
{
    const int latest = thisYear + yearsAhead;
    const int year = latest - latest % 100 + twoDigits;
    return year > latest ? year - 100 : year;
}

} // namespace

std::optional<QDate> typedDate(QStringView text, QDate today)
{
    static const QRegularExpression parts(
        QStringLiteral("^\\s*(\\d{1,2})\\s*[/.\\-\\s]\\s*(\\d{1,2})\\s*[/.\\-\\s]\\s*(\\d{2}|\\d{4})\\s*$"));
    static const QRegularExpression digits(QStringLiteral("^\\s*(\\d{2})(\\d{2})(\\d{2}|\\d{4})\\s*$"));
    QRegularExpressionMatch match = parts.match(text.toString());
    if (!match.hasMatch())
        match = digits.match(text.toString());
    if (!match.hasMatch())
        return std::nullopt;
    int year = match.captured(3).toInt();
    if (match.captured(3).size() == 2)
        year = fullYear(year, today.year());
    constexpr int oldest = 1800;
    constexpr int furthest = 2199;
    const QDate date(year, match.captured(2).toInt(), match.captured(1).toInt());
    if (!date.isValid() || year < oldest || year > furthest)
        return std::nullopt;
    return date;
}

} // namespace basic
