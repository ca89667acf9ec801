#pragma once

#include <QString>

namespace basic
{

/// How what a person types to find something meets a text: accents and case do not count, a typed n finds ñ
/// too, and a typed ñ only ñ.
bool beginsWithTyped(QStringView text, QStringView typed);
bool containsTyped(QStringView text, QStringView typed);
/// Where it stands in a text of composed letters, from a place on; -1 when it does not.
qsizetype indexOfTyped(QStringView text, QStringView typed, qsizetype from = 0);

/// The letters that a typed character stands for, small and composed, the character itself among them.
QString lettersMeant(QChar typed);

} // namespace basic
