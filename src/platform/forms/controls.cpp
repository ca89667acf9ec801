#include "platform/forms/controls.h"

#include "platform/basic/cleantext.h"
#include "platform/basic/environment.h"
#include "platform/forms/sidetabbar.h"
#include "platform/forms/wrong.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStackedWidget>
#include <QTabBar>

namespace forms
{

namespace
{

QLocale argentina()
{
    return QLocale(QLocale::Spanish, QLocale::Argentina);
}

constexpr int longestText = 255; // of a column of text
const QString noneFound = QStringLiteral("Sin coincidencias");

/// The entries of a combo, whose letters are read as those of a list.
class ChoiceView : public QListView
{
public:
    void keyboardSearch(const QString &letter) override
    {
        if (const int row = typeAhead_.rowFor(letter, *model(), currentIndex().row()); row >= 0)
            setCurrentIndex(model()->index(row, 0));
    }

private:
    TypeAhead typeAhead_;
};

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

TextBox::TextBox(const QString &name, int maxLength) : ownLength_(maxLength > 0)
{
    setObjectName(name);
    setMaxLength(maxLength > 0 ? maxLength : longestText);
    connect(this, &QLineEdit::textEdited, this, [this](const QString &text) {
        const QString clean = basic::cleanText(text);
        if (clean == text)
            return;
        const int left = cursorPosition() - static_cast<int>(text.size() - clean.size());
        setText(clean);
        setCursorPosition(qMax(0, left));
    });
}

void TextBox::setSecret()
{
    setEchoMode(QLineEdit::Password);
    QAction *see = addAction(QIcon(QStringLiteral(":/icons/ver.svg")), TrailingPosition);
    see->setCheckable(true);
    see->setToolTip(QStringLiteral("Ver lo escrito"));
    connect(see, &QAction::toggled, this, [this](bool shown) {
        setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
        emit secretShown(shown);
    });
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        selectAll();
}

SearchBox::SearchBox(const QString &name, int maxLength) : TextBox(name, maxLength)
{
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.isEmpty())
            setFound(true);
    });
}

void SearchBox::setFound(bool found)
{
    found_ = found;
    QPalette colours;
    if (!found)
        colours.setColor(QPalette::Text, QColor(wrongInk));
    setPalette(colours);
    setToolTip(found ? QString() : noneFound);
    update();
}

void SearchBox::paintEvent(QPaintEvent *event)
{
    TextBox::paintEvent(event);
    if (found_)
        return;
    QPainter painter(this);
    painter.setPen(QColor(wrongInk));
    QFont small = font();
    small.setItalic(true);
    painter.setFont(small);
    const QRect room = rect().adjusted(8, 0, -8, 0);
    const int taken =
        fontMetrics().horizontalAdvance(text()) + fontMetrics().horizontalAdvance(noneFound) + 16;
    if (taken <= room.width())
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, noneFound);
}

MemoBox::MemoBox(const QString &name)
{
    setObjectName(name);
    setTabChangesFocus(true);
}

void MemoBox::insertFromMimeData(const QMimeData *source)
{
    if (source->hasText())
        insertPlainText(basic::cleanText(source->text()));
}

ComboBox::ComboBox(const QString &name, const QStringList &entries, bool editable)
{
    setObjectName(name);
    setPlaceholderText(QStringLiteral(" ")); // without one the toolkit chooses the first entry by itself
    setView(new ChoiceView);
    addItems(entries);
    if (editable) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        lineEdit()->setMaxLength(longestText);
        auto *completer = new QCompleter(model(), this); // it offers; what is typed is what is stored
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setCompletionMode(QCompleter::PopupCompletion);
        setCompleter(completer);
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

void ListBox::keyboardSearch(const QString &letter)
{
    const int row = typeAhead_.rowFor(letter, *model(), currentRow());
    if (row < 0)
        return;
    setCurrentRow(row, takesSeveral() ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
    marking_ = takesSeveral();
}

bool ListBox::takesSeveral() const
{
    return selectionMode() == ExtendedSelection || selectionMode() == MultiSelection;
}

void ListBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space || !takesSeveral() || !currentItem()) {
        QListWidget::keyPressEvent(event);
        return;
    }
    marking_ = true;
    typeAhead_ = {};
    selectionModel()->select(currentIndex(), QItemSelectionModel::Toggle);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index,
                                                              const QEvent *event) const
{
    const bool byKey = event && event->type() == QEvent::KeyPress;
    if (byKey && marking_ && !static_cast<const QKeyEvent *>(event)->modifiers().testFlag(Qt::ShiftModifier))
        return QItemSelectionModel::NoUpdate;
    return QListWidget::selectionCommand(index, event);
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

namespace
{

void setOwnIcon(QAbstractButton &button, const QString &icon)
{
    const QString picture = QStringLiteral(":/icons/%1.svg").arg(icon);
    if (!icon.isEmpty() && QFile::exists(picture))
        button.setIcon(QIcon(picture));
}

} // namespace

CommandButton::CommandButton(const QString &name, const QString &caption, const QString &icon)
    : QPushButton(caption)
{
    setObjectName(name);
    setAutoDefault(false);
    setOwnIcon(*this, icon);
}

ToolButton::ToolButton(const QString &name, const QString &caption, const QString &icon)
{
    setObjectName(name);
    setText(caption);
    setToolTip(caption);
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setIconSize(QSize(20, 20));
    setFocusPolicy(Qt::TabFocus); // a click leaves the text in use
    setOwnIcon(*this, icon);
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

void MonthView::setChoiceShown(bool shown)
{
    choiceShown_ = shown;
    auto *days = findChild<QAbstractItemView *>();
    QPalette colours = days->palette();
    const QPalette usual = palette();
    const auto from = [&](QPalette::ColorRole role) { return usual.color(QPalette::Active, role); };
    colours.setColor(QPalette::Highlight, from(shown ? QPalette::Highlight : QPalette::Base));
    colours.setColor(QPalette::HighlightedText, from(shown ? QPalette::HighlightedText : QPalette::Text));
    days->setPalette(colours);
}

void MonthView::paintCell(QPainter *painter, const QRect &cell, QDate day) const
{
    QCalendarWidget::paintCell(painter, cell, day);
    if (!choiceShown_ || day != selectedDate())
        return;
    painter->save();
    painter->setPen(QPen(palette().color(QPalette::Active, QPalette::Text), 2));
    painter->drawRect(cell.adjusted(2, 2, -2, -2));
    painter->restore();
}

/// The bar takes the focus and not the whole: else the Tab key would come back from the whole, which stands
/// behind all other controls, to the bar, and never to what stands before it.
SSTab::SSTab(const QString &name)
{
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    tabBar()->setFocusPolicy(Qt::StrongFocus);
}

void SSTab::setCaptionsAtSide()
{
    setTabBar(new SideTabBar);
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    setTabPosition(QTabWidget::West);
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
