#pragma once

#include <QColor>

class QWidget;

/// Colours of controls. The rules give a colour as one number with red in the low byte: 255 is red.
namespace forms
{

QColor fromColourValue(int value);
int toColourValue(const QColor &colour);

void setBackColor(QWidget &control, const QColor &colour);
QColor backColor(const QWidget &control);
void setForeColor(QWidget &control, const QColor &colour);
QColor foreColor(const QWidget &control);

} // namespace forms
