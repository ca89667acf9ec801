#include "platform/forms/dtpicker.h"

#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/typeddate.h"
#include "platform/forms/wrong.h"

#include <QAction>
#include <QCalendarWidget>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QWidgetAction>

namespace forms
{

namespace
{

const QString shape = QStringLiteral("dd/MM/yyyy");

QString impossible(const QString &text)
{
    return text.trimmed().isEmpty() ? QStringLiteral("Falta la fecha: dd/mm/aaaa")
                                    : QStringLiteral("«%1» no es una fecha: dd/mm/aaaa").arg(text);
}

} // namespace

DTPicker::DTPicker(const QString &name, Presence presence) : presence_(presence)
{
    setObjectName(name);
    setMaxLength(20);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QAction *calendar = addAction(QIcon(QStringLiteral(":/icons/calendario.svg")), TrailingPosition);
    calendar->setToolTip(QStringLiteral("Elegir en el calendario"));
    connect(calendar, &QAction::triggered, this, &DTPicker::openCalendar);
    if (presence_ == Presence::Required)
        show(basic::today().date());
}

QSize DTPicker::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 54,
            QLineEdit::sizeHint().height()};
}

bool DTPicker::readable() const
{
    if (text().trimmed().isEmpty())
        return presence_ == Presence::Optional;
    return basic::typedDate(text(), basic::today().date()).has_value();
}

QDate DTPicker::date() const
{
    if (!readable())
        throw basic::Error(13, impossible(text()));
    return basic::typedDate(text(), basic::today().date()).value_or(QDate());
}

void DTPicker::setDate(QDate date)
{
    if (!date.isValid() && presence_ == Presence::Required)
        date = basic::today().date();
    const bool other = date != date_ || text() != (date.isValid() ? date.toString(shape) : QString());
    show(date);
    if (other)
        emit dateChanged(date_);
}

void DTPicker::show(QDate date)
{
    date_ = date;
    setText(date.isValid() ? date.toString(shape) : QString());
    clearWrong(*this);
}

basic::Value DTPicker::fieldValue() const
{
    const QDate day = date();
    return day.isValid() ? basic::Value(day) : basic::Value(basic::Null{});
}

void DTPicker::setFieldValue(const basic::Value &value)
{
    setDate(value.isBlank() ? QDate() : value.date().date());
}

bool DTPicker::take()
{
    if (!readable()) {
        markWrong(*this, impossible(text()));
        return false;
    }
    setDate(date());
    return true;
}

void DTPicker::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    selectOnRelease_ = event->reason() == Qt::MouseFocusReason;
}

/// What is no date is not left: the focus comes back, unless the window is going.
void DTPicker::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || take())
        return;
    QTimer::singleShot(0, this, [this] {
        if (isVisible() && window()->isActiveWindow() && !readable())
            setFocus(Qt::OtherFocusReason);
    });
}

void DTPicker::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    if (!hasSelectedText())
        selectOnRelease_ = true;
}

void DTPicker::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (selectOnRelease_ && !hasSelectedText())
        selectAll();
    selectOnRelease_ = false;
}

void DTPicker::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        step(1);
        return;
    case Qt::Key_Down:
        event->modifiers().testFlag(Qt::AltModifier) ? openCalendar() : step(-1);
        return;
    case Qt::Key_F4:
        openCalendar();
        return;
    case Qt::Key_Escape:
        if (!readable()) { // back to the last date that was one
            show(date_);
            selectAll();
            return;
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!take())
            return;
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

/// The day from the whole text selected or the cursor in it, the month and the year from theirs.
void DTPicker::step(int by)
{
    if (!take())
        return;
    const QDate from = date_.isValid() ? date_ : basic::today().date();
    const int cursor = hasSelectedText() ? 0 : cursorPosition();
    setDate(cursor <= 2 ? from.addDays(by) : cursor <= 5 ? from.addMonths(by) : from.addYears(by));
    setCursorPosition(cursor <= 2 ? 2 : cursor <= 5 ? 5 : 10);
}

void DTPicker::openCalendar()
{
    QMenu menu(this);
    auto *calendar = new QCalendarWidget;
    calendar->setLocale(QLocale(QLocale::Spanish, QLocale::Argentina));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setSelectedDate(readable() && date().isValid() ? date() : basic::today().date());
    auto *place = new QWidgetAction(&menu);
    place->setDefaultWidget(calendar);
    menu.addAction(place);
    const auto choose = [this, &menu](QDate day) {
        setDate(day);
        menu.close();
    };
    connect(calendar, &QCalendarWidget::clicked, &menu, choose);
    connect(calendar, &QCalendarWidget::activated, &menu, choose);
    calendar->setFocus();
    menu.exec(mapToGlobal(QPoint(0, height())));
    selectAll();
}

} // namespace forms

#include "moc_dtpicker.cpp"
