#include "platform/forms/colour.h"

#include <QLabel>
#include <QPalette>
#include <QWidget>

namespace forms
{

namespace
{

/// The palette roles a control may paint its ground with: windows and labels, fields, buttons.
constexpr QPalette::ColorRole grounds[] = {QPalette::Window, QPalette::Base, QPalette::Button};
constexpr QPalette::ColorRole inks[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};

void setRoles(QWidget &control, const QPalette::ColorRole (&roles)[3], const QColor &colour)
{
    QPalette palette = control.palette();
    for (QPalette::ColorRole role : roles)
        palette.setColor(role, colour);
    control.setPalette(palette);
}

} // namespace

QColor fromColourValue(int value)
{
    return QColor(value & 0xff, (value >> 8) & 0xff, (value >> 16) & 0xff);
}

int toColourValue(const QColor &colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

void setBackColor(QWidget &control, const QColor &colour)
{
    control.setAutoFillBackground(true);
    if (auto *label = qobject_cast<QLabel *>(&control); label && label->margin() == 0)
        label->setMargin(4); // a coloured label is a panel
    setRoles(control, grounds, colour);
}

QColor backColor(const QWidget &control)
{
    return control.palette().color(control.backgroundRole());
}

void setForeColor(QWidget &control, const QColor &colour)
{
    setRoles(control, inks, colour);
}

QColor foreColor(const QWidget &control)
{
    return control.palette().color(control.foregroundRole());
}

} // namespace forms
