#include "guion/gestures.h"

#include "guion/script.h"
#include "platform/forms/twips.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QTextEdit>
#include <QTimeEdit>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtTest/qtestspontaneevent.h>

namespace guion
{

namespace
{

/// Where a person clicks: the mark of a check box, the current row of a list, else the middle.
QPoint naturalPlace(const QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    const bool marked = qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget);
    return marked ? QPoint(qMin(8, middle.x()), middle.y()) : middle;
}

QPoint rowPlace(QAbstractItemView *view)
{
    const QModelIndex current = view->currentIndex();
    if (!current.isValid())
        return view->viewport()->rect().center();
    view->scrollTo(current);
    return view->visualRect(current).intersected(view->viewport()->rect()).center();
}

void scrollIntoView(QWidget *widget)
{
    for (QWidget *ancestor = widget->parentWidget(); ancestor; ancestor = ancestor->parentWidget())
        if (auto *area = qobject_cast<QScrollArea *>(ancestor))
            area->ensureWidgetVisible(widget);
}

void sendKey(QWidget *widget, Qt::Key key, const QString &text, Qt::KeyboardModifiers modifiers = {})
{
    QTest::sendKeyEvent(QTest::Click, widget, key, text, modifiers);
}

void sendMouse(QWidget *widget, QEvent::Type type, QPointF place, Qt::MouseButton button,
               Qt::MouseButtons held)
{
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, held, Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

/// The widget that takes the keys of a control: the text part of a combo or a number field.
QWidget *typingPart(QWidget *widget)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget); combo && combo->isEditable())
        return combo->lineEdit();
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
        return spin->findChild<QLineEdit *>();
    return widget;
}

bool isField(const QWidget *widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return !line->isReadOnly();
    if (const auto *memo = qobject_cast<const QPlainTextEdit *>(widget))
        return !memo->isReadOnly();
    const auto *rich = qobject_cast<const QTextEdit *>(widget);
    return rich && !rich->isReadOnly();
}

} // namespace

void clickAt(QWidget *widget, QPoint place, Click kind, Qt::KeyboardModifiers keys)
{
    bringForward(widget);
    const QPointer<QWidget> self(widget);
    if (kind == Click::Right) {
        QTest::mouseClick(widget, Qt::RightButton, keys, place);
        if (!self)
            return;
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
        qApp->notify(widget, &menu);
    } else if (kind == Click::Double) {
        QTest::mouseClick(widget, Qt::LeftButton, keys, place);
        if (self)
            QTest::mouseDClick(widget, Qt::LeftButton, keys, place);
        if (self)
            QTest::mouseRelease(widget, Qt::LeftButton, keys, place);
    } else {
        QTest::mouseClick(widget, Qt::LeftButton, keys, place);
    }
}

void click(QWidget *widget, Click kind)
{
    scrollIntoView(widget);
    if (widget->focusPolicy() & Qt::ClickFocus)
        widget->setFocus(Qt::MouseFocusReason);
    if (auto *view = qobject_cast<QAbstractItemView *>(widget))
        clickAt(view->viewport(), rowPlace(view), kind);
    else if (qobject_cast<QTimeEdit *>(widget)) // its text covers its middle
        clickAt(typingPart(widget), naturalPlace(typingPart(widget)), kind);
    else
        clickAt(widget, naturalPlace(widget), kind);
}

namespace
{

/// A place of a control or of a drawing, on the widget that takes the mouse there.
struct Spot {
    QWidget *widget;
    QPoint place;
};

forms::Drawn *drawingOf(const Target &target)
{
    return dynamic_cast<forms::Drawn *>(target.object);
}

Spot revealed(forms::Drawn &drawing, QPointF twips)
{
    const Spot spot{&drawing.surface(), drawing.reveal(twips)};
    for (QWidget *ancestor = spot.widget; ancestor; ancestor = ancestor->parentWidget())
        if (auto *area = qobject_cast<QScrollArea *>(ancestor)) {
            const QPoint place = spot.widget->mapTo(area->widget(), spot.place);
            area->ensureVisible(place.x(), place.y());
        }
    return spot;
}

Spot gripOf(const Target &target)
{
    if (target.drawn)
        return revealed(*drawingOf(target), drawingOf(target)->grip(*target.drawn));
    auto *widget = qobject_cast<QWidget *>(target.object);
    return {widget, widget->rect().center()};
}

Spot spotOf(const Target &target, QPointF twips)
{
    if (forms::Drawn *drawing = drawingOf(target))
        return revealed(*drawing, target.drawn ? target.drawn->place.topLeft() + twips : twips);
    return {qobject_cast<QWidget *>(target.object), (twips / forms::twipsPerPixel).toPoint()};
}

} // namespace

void click(const Target &target, Click kind)
{
    forms::Drawn *drawing = drawingOf(target);
    if (!drawing)
        return click(qobject_cast<QWidget *>(target.object), kind);
    const Spot spot =
        target.drawn ? gripOf(target) : Spot{&drawing->surface(), drawing->surface().rect().center()};
    if (spot.widget->focusPolicy() & Qt::ClickFocus)
        spot.widget->setFocus(Qt::MouseFocusReason);
    clickAt(spot.widget, spot.place, kind);
}

void drag(const Target &source, const Target &target, QPointF twips)
{
    // Where it is let go comes into sight first: what is taken hold of must still be there.
    spotOf(target, twips);
    const Spot from = gripOf(source);
    const Spot to = spotOf(target, twips);
    bringForward(from.widget);
    const QPointer<QWidget> self(from.widget);
    // On the screen: what is dragged may move under the mouse.
    const QPointF start = from.widget->mapToGlobal(QPointF(from.place));
    const QPointF end = to.widget->mapToGlobal(QPointF(to.place));
    const auto here = [&](QPointF onScreen) { return from.widget->mapFromGlobal(onScreen); };
    sendMouse(from.widget, QEvent::MouseButtonPress, here(start), Qt::LeftButton, Qt::LeftButton);
    constexpr int moves = 4;
    for (int i = 1; i <= moves && self; ++i)
        sendMouse(from.widget, QEvent::MouseMove, here(start + (end - start) * i / moves), Qt::NoButton,
                  Qt::LeftButton);
    if (self)
        sendMouse(from.widget, QEvent::MouseButtonRelease, here(end), Qt::LeftButton, Qt::NoButton);
}

void focus(QWidget *widget)
{
    bringForward(widget);
    widget->setFocus(Qt::MouseFocusReason);
    if (!widget->hasFocus() && QApplication::focusWidget() != typingPart(widget))
        throw Failure(QStringLiteral("%1 does not take the focus").arg(widget->objectName()));
}

void typeInto(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> self(widget);
    for (const QChar &character : text) {
        if (!self)
            return;
        if (character == u'\n')
            sendKey(widget, Qt::Key_Return, QStringLiteral("\r"));
        else
            sendKey(widget, static_cast<Qt::Key>(character.toUpper().unicode()), character);
    }
}

namespace
{

void slideTo(QAbstractSlider *slider, const QString &text)
{
    bool number = false;
    const int value = text.toInt(&number);
    if (!number || value < slider->minimum() || value > slider->maximum())
        throw Failure(QStringLiteral("%1 goes from %2 to %3")
                          .arg(slider->objectName())
                          .arg(slider->minimum())
                          .arg(slider->maximum()));
    focus(slider);
    slider->setSliderDown(true);
    slider->setSliderPosition(value);
    slider->setSliderDown(false);
}

} // namespace

void replaceText(QWidget *control, const QString &text)
{
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        slideTo(slider, text);
        return;
    }
    if (auto *date = qobject_cast<QTimeEdit *>(control)) {
        // Its parts are typed one by one and correct each other on the way; the whole is what is meant.
        const QTime moment = QTime::fromString(text, date->displayFormat());
        if (!moment.isValid())
            throw Failure(QStringLiteral("%1 takes no such text").arg(control->objectName()));
        focus(control);
        date->setTime(moment);
        return;
    }
    QWidget *field = typingPart(control);
    if (!isField(field))
        throw Failure(QStringLiteral("%1 takes no text").arg(control->objectName()));
    focus(control);
    QMetaObject::invokeMethod(field, "selectAll");
    if (text.isEmpty())
        sendKey(field, Qt::Key_Delete, QString(QChar(0x7f)));
    else
        typeInto(field, text);
}

void leave(QWidget *control)
{
    QWidget *field = typingPart(control);
    if (!field->hasFocus())
        focus(control);
    const QPointer<QWidget> self(field);
    sendKey(field, Qt::Key_Tab, QStringLiteral("\t"));
    if (self && self->hasFocus())
        self->clearFocus();
}

void pressKey(const QString &name)
{
    const QKeySequence keys = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        throw Failure(QStringLiteral("there is no key %1").arg(name));
    QWidget *window = activeWindow();
    QWidget *receiver = QApplication::activePopupWidget();
    if (!receiver && window) {
        bringForward(window);
        receiver = QApplication::focusWidget();
        if (!receiver || !(receiver == window || window->isAncestorOf(receiver)))
            receiver = window->focusWidget() ? window->focusWidget() : window;
    }
    if (!receiver)
        throw Failure(QStringLiteral("no window takes the key"));
    const bool plain = !(keys[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const Qt::Key key = keys[0].key();
    QString text;
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        text = QStringLiteral("\r");
    else if (key == Qt::Key_Space)
        text = QStringLiteral(" ");
    else if (plain && name.size() == 1)
        text = name;
    sendKey(receiver, key, text, keys[0].keyboardModifiers());
}

} // namespace guion
