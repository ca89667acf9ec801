#include "platform/forms/controls.h"

#include "platform/basic/environment.h"

#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStackedWidget>

namespace forms
{

namespace
{

QLocale argentina()
{
    return QLocale(QLocale::Spanish, QLocale::Argentina);
}

/// Members of a form are not their container's to delete.
void releaseChildren(QWidget &container)
{
    QWidget *window = container.window();
    if (window == &container)
        window = nullptr;
    for (QWidget *child : container.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        child->setParent(window);
}

} // namespace

Label::Label(const QString &name, const QString &caption) : QLabel(caption)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText); // "<Sin Asignar>" is a text, not markup
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        event->accept();
        emit clicked();
    }
}

void Label::enterEvent(QEnterEvent *event)
{
    QLabel::enterEvent(event);
    emit hovered();
}

TextBox::TextBox(const QString &name, int maxLength)
{
    setObjectName(name);
    if (maxLength > 0)
        setMaxLength(maxLength);
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        selectAll();
}

MemoBox::MemoBox(const QString &name)
{
    setObjectName(name);
    setTabChangesFocus(true);
}

ComboBox::ComboBox(const QString &name, const QStringList &entries, bool editable)
{
    setObjectName(name);
    addItems(entries);
    if (editable) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr); // what is typed is what is stored
        setEditText({});
    }
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(8);
}

void ComboBox::setValue(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    if (isEditable() && currentText() != text)
        setEditText(text);
}

ListBox::ListBox(const QString &name)
{
    setObjectName(name);
    setUniformItemSizes(true);
}

QStringList ListBox::lines() const
{
    QStringList texts;
    for (int i = 0; i < count(); ++i)
        texts.append(item(i)->text());
    return texts;
}

CheckBox::CheckBox(const QString &name, const QString &caption) : QCheckBox(caption)
{
    setObjectName(name);
}

OptionButton::OptionButton(const QString &name, const QString &caption) : QRadioButton(caption)
{
    setObjectName(name);
}

CommandButton::CommandButton(const QString &name, const QString &caption, const QString &icon)
    : QPushButton(caption)
{
    setObjectName(name);
    setAutoDefault(false);
    const QString picture = QStringLiteral(":/icons/%1.svg").arg(icon);
    if (!icon.isEmpty() && QFile::exists(picture))
        setIcon(QIcon(picture));
}

QSize CommandButton::sizeHint() const
{
    const QSize natural = QPushButton::sizeHint() + QSize(12, 4);
    return text().isEmpty() ? natural : natural.expandedTo(QSize(92, 30));
}

void CommandButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

DTPicker::DTPicker(const QString &name) : QDateEdit(basic::today().date())
{
    setObjectName(name);
    setLocale(argentina());
    setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    setCalendarPopup(true);
    calendarWidget()->setLocale(argentina());
    calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

basic::Date DTPicker::value() const
{
    return basic::Date(date());
}

void DTPicker::setValue(basic::Date value)
{
    setDate(value.date());
}

TimePicker::TimePicker(const QString &name) : QTimeEdit(QTime(0, 0))
{
    setObjectName(name);
    setDisplayFormat(QStringLiteral("HH:mm"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

MonthView::MonthView(const QString &name)
{
    setObjectName(name);
    setLocale(argentina());
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setSelectedDate(basic::today().date());
}

basic::Date MonthView::value() const
{
    return basic::Date(selectedDate());
}

void MonthView::setValue(basic::Date value)
{
    setSelectedDate(value.date());
}

SSTab::SSTab(const QString &name)
{
    setObjectName(name);
}

SSTab::~SSTab()
{
    const QSignalBlocker silence(this); // the form's handlers are gone already
    while (count() > 0) {
        QWidget *page = widget(0);
        removeTab(0);
        page->setParent(window() == this ? nullptr : window());
    }
}

Frame::Frame(const QString &name, const QString &caption) : QGroupBox(caption)
{
    setObjectName(name);
}

Frame::~Frame()
{
    releaseChildren(*this);
}

TreeView::TreeView(const QString &name)
{
    setObjectName(name);
    setHeaderHidden(true);
    setUniformRowHeights(true);
}

Timer::Timer(const QString &name, int interval)
{
    setObjectName(name);
    setInterval(interval);
}

PictureBox::~PictureBox()
{
    releaseChildren(*this);
}

} // namespace forms

#include "moc_controls.cpp"
