#pragma once

#include <QString>

class QWidget;

namespace forms
{

/// Marks a field whose content cannot be accepted, gives it the focus and says why in its tool tip. The mark
/// goes when the content changes.
void markWrong(QWidget &field, const QString &why);
void clearWrong(QWidget &field);
bool isMarkedWrong(const QWidget &field);

/// A colour on white that says "no": red, with contrast enough to read.
inline constexpr unsigned wrongInk = 0xffb03a2e;

} // namespace forms
