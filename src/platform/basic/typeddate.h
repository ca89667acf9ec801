#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace basic
{

/// The day that a person typed: day, month and year by "/", ".", "-" or blanks, or as six or eight digits
/// with nothing between ("5/3/22", "05-03-2022", "05032022"). A year of two digits lies between 79 years
/// before `today` and 20 after. Nothing for what is no such day; no part is ever guessed or put right.
std::optional<QDate> typedDate(QStringView text, QDate today);

} // namespace basic
