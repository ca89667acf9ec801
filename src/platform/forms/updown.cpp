#include "platform/forms/updown.h"

#include <QLineEdit>

namespace forms
{

namespace
{

constexpr int arrowsPixels = 17;

} // namespace

UpDown::UpDown(const QString &name)
{
    setObjectName(name);
    lineEdit()->hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize UpDown::sizeHint() const
{
    return {arrowsPixels, QAbstractSpinBox::sizeHint().height()};
}

} // namespace forms

#include "moc_updown.cpp"
