#include "platform/forms/style.h"

#include "platform/forms/wrong.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QPainter>
#include <QStyleFactory>

namespace forms
{

namespace
{

void frameWrong(QPainter &painter, const QRect &field)
{
    painter.save();
    painter.setPen(QPen(QColor(wrongInk), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(field.adjusted(1, 1, -1, -1));
    painter.restore();
}

bool turnsByWheel(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QComboBox *>(widget);
}

} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

/// Number and date fields are as high as text fields, which the style does not make them.
void Style::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (auto *field = qobject_cast<QAbstractSpinBox *>(widget))
        field->setMinimumHeight(field->fontMetrics().height() + 11);
    if (qobject_cast<QAbstractScrollArea *>(widget) || turnsByWheel(widget))
        widget->installEventFilter(this);
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
}

/// A list or memo in use has the frame of a field in use: with the keyboard alone it must be seen where one
/// is.
void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (widget && isMarkedWrong(*widget) && (element == PE_PanelLineEdit || element == PE_Frame)) {
        frameWrong(*painter, option->rect);
        return;
    }
    if (element != PE_Frame || !option->state.testFlag(State_HasFocus) ||
        !qobject_cast<const QAbstractScrollArea *>(widget))
        return;
    painter->setPen(option->palette.color(QPalette::Highlight));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && widget && isMarkedWrong(*widget))
        frameWrong(*painter, option->rect);
}

/// The frame is painted anew with the focus, which the toolkit does for the contents only. A wheel turned
/// over a date or a choice on the way down a window must not change what it holds.
bool Style::eventFilter(QObject *receiver, QEvent *event)
{
    auto *widget = static_cast<QWidget *>(receiver);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        widget->update();
    if (event->type() != QEvent::Wheel || !turnsByWheel(widget) || widget->hasFocus())
        return QProxyStyle::eventFilter(receiver, event);
    event->ignore();
    return true;
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                              const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_ItemViewItem:
        return size + QSize(0, 4);
    case CT_TabBarTab:
        return size + QSize(8, 2);
    default:
        return size;
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *data) const
{
    // The mnemonics of a dense screen are worth seeing at all times.
    if (hint == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace forms
