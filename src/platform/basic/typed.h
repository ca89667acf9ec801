#pragma once

#include <QString>

#include <optional>

namespace basic
{

/// A yes or no as people write it ("Sí", "no", "Verdadero") or as it is stored (-1, 0); nothing for another
/// text.
std::optional<bool> typedTruth(QStringView text);

/// How what a person types to find something meets a text: accents and case do not count, a typed n finds ñ
/// too, and a typed ñ only ñ.
bool beginsWithTyped(QStringView text, QStringView typed);
bool containsTyped(QStringView text, QStringView typed);
/// Where it stands in a text of composed letters, from a place on; -1 when it does not.
qsizetype indexOfTyped(QStringView text, QStringView typed, qsizetype from = 0);

/// The letters that a typed character stands for, small and composed, the character itself among them.
QString lettersMeant(QChar typed);

} // namespace basic
