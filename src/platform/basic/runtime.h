#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <optional>

/// The functions of the language runtime that the practice's rules are written in, in the es-AR locale:
/// dd/mm/yyyy, decimal comma, thousands point. Names and results are the runtime's own.
namespace basic
{

/// Formats a number, date or text by a pattern: digits "0 # , . %", dates "d dd ddd dddd m mm mmm mmmm
/// yy yyyy", times "H HH h M MM (after an hour) N NN S SS AM/PM", the names "currency", "General Number",
/// "Fixed", "Standard", "Short Date", "Long Date", "Short Time". Null and Empty give "".
QString format(const Value &value, QStringView pattern);

bool isNumeric(QStringView text); ///< a whole number by the locale: "1.234,5", "-3", "$ 20"; blank is not
bool isDate(QStringView text);
/// The number at the start of the text, with a decimal point whatever the locale; blanks are skipped. 0
/// without one.
double val(QStringView text);
std::optional<double> toNumber(QStringView text); ///< by the locale, as isNumeric accepts it
std::optional<Date> toDate(QStringView text);     ///< "15/3/2024", "15-03-24", "2024-03-15", with or without
                                                  ///< "10:30[:15]"; a lone time has day 0
/// A number in text with a leading blank for the sign and a decimal point.
QString str(double number);

qint64 intPart(double number); ///< Int: the whole number not above
qint64 fixPart(double number); ///< Fix: towards zero
/// Boundaries of the interval between two dates: "d", "ww", "w", "m", "q", "yyyy", "h", "n", "s".
qint64 dateDiff(QStringView interval, Date from, Date to);
Date dateAdd(QStringView interval, int count, Date from);
int weekday(Date date); ///< 1 is Sunday

/// Short date "dd/mm/yyyy", with " HH:MM:SS" when there is a time of day; a lone time gives the time.
QString dateText(Date date);
/// A number with a decimal point and no thousands mark, as it is written into a statement.
QString sqlNumber(double number);
/// The text between # signs that the engine reads as the same day: #mm/dd/yyyy#.
QString sqlDate(Date date);

/// Seconds since midnight of the program's clock, with fraction.
double timer();

} // namespace basic
