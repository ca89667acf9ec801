#include "guion/choose.h"

#include "guion/gestures.h"
#include "guion/windows.h"
#include "platform/forms/dtpicker.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimeEdit>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest/qtestkeyboard.h>

namespace guion
{

namespace
{

/// The place of an entry among texts. Throws Failure that lists them.
int placeOf(const Word &entry, const QStringList &texts)
{
    bool number = false;
    const int index = entry.text.toInt(&number);
    const int place = number && !entry.quoted ? index : static_cast<int>(texts.indexOf(entry.text));
    if (place < 0 || place >= texts.size())
        throw Failure(QStringLiteral("there is no such entry"), entry.text,
                      texts.join(QStringLiteral(" | ")));
    return place;
}

void chooseInCombo(QComboBox *combo, const Word &entry)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    const int place = placeOf(entry, texts);
    combo->setFocus(Qt::MouseFocusReason);
    combo->showPopup();
    combo->view()->setCurrentIndex(
        combo->model()->index(place, combo->modelColumn(), combo->rootModelIndex()));
    QTest::sendKeyEvent(QTest::Click, combo->view(), Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
}

QStringList lines(const QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts.append(list->item(i)->text());
    return texts;
}

void clickIndex(QAbstractItemView *view, const QModelIndex &index, Qt::KeyboardModifiers keys = {})
{
    bringForward(view);
    view->setFocus(Qt::MouseFocusReason);
    view->scrollTo(index);
    QRect place = view->visualRect(index).intersected(view->viewport()->rect());
    if (place.isEmpty())
        throw Failure(QStringLiteral("the row cannot be brought into sight"));
    // A long text reaches out of sight; its start does not.
    clickAt(view->viewport(), QPoint(qMin(place.left() + 20, place.center().x()), place.center().y()),
            Click::Single, keys);
}

bool inSight(const QTreeWidgetItem &node)
{
    const QTreeWidgetItem *parent = node.parent();
    return !node.isHidden() && (!parent || (parent->isExpanded() && inSight(*parent)));
}

/// By its text any node, with the branches above it opened; by its number one of those in sight.
void chooseInTree(QTreeWidget *tree, const Word &entry)
{
    bool number = false;
    entry.text.toInt(&number);
    QList<QTreeWidgetItem *> items = visibleNodes(*tree);
    if (!number || entry.quoted) {
        items.clear();
        for (QTreeWidgetItemIterator it(tree, QTreeWidgetItemIterator::NotHidden); *it; ++it)
            items.append(*it);
    }
    QStringList texts;
    for (const QTreeWidgetItem *item : items)
        texts.append(item->text(0));
    QTreeWidgetItem *item = items[placeOf(entry, texts)];
    for (QTreeWidgetItem *parent = item->parent(); parent; parent = parent->parent())
        parent->setExpanded(true);
    clickIndex(tree, tree->indexFromItem(item));
}

void chooseInTabs(QTabWidget *tabs, const Word &entry)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts.append(withoutMnemonic(tabs->tabText(i)));
    const int place = placeOf(entry, texts);
    if (!tabs->isTabEnabled(place))
        throw Failure(QStringLiteral("the page is disabled"));
    clickAt(tabs->tabBar(), tabs->tabBar()->tabRect(place).center());
}

/// The cell of a day in the page of the calendar that shows its month.
QModelIndex dayCell(const QAbstractItemModel &model, int day)
{
    bool inMonth = false;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            bool number = false;
            const int shown = index.data().toInt(&number);
            inMonth = inMonth || (number && shown == 1 && index.flags().testFlag(Qt::ItemIsEnabled));
            if (inMonth && number && shown == day)
                return index;
        }
    }
    return {};
}

void clickDay(QCalendarWidget *calendar, QDate date)
{
    calendar->setCurrentPage(date.year(), date.month());
    auto *view = calendar->findChild<QTableView *>(QStringLiteral("qt_calendar_calendarview"));
    const QModelIndex cell = view ? dayCell(*view->model(), date.day()) : QModelIndex();
    if (!cell.isValid())
        throw Failure(QStringLiteral("the calendar does not show %1").arg(date.toString(Qt::ISODate)));
    clickIndex(view, cell);
}

QModelIndex gridIndex(QAbstractItemView *view, int row, int column)
{
    const QModelIndex index = view->model() ? view->model()->index(row, column) : QModelIndex();
    if (!index.isValid())
        throw Failure(QStringLiteral("the grid has no row %1 with a column %2").arg(row).arg(column));
    return index;
}

QAbstractItemView *asView(QWidget *control)
{
    auto *view = qobject_cast<QAbstractItemView *>(control);
    if (!view)
        throw Failure(QStringLiteral("%1 is no list or grid").arg(control->objectName()));
    return view;
}

/// The menus from the open popup down to the one that holds the action.
bool pathTo(QMenu *menu, const QAction *action, QList<QMenu *> &path)
{
    path.append(menu);
    for (QAction *entry : menu->actions())
        if (entry == action || (entry->menu() && pathTo(entry->menu(), action, path)))
            return true;
    path.removeLast();
    return false;
}

} // namespace

QList<QTreeWidgetItem *> visibleNodes(const QTreeWidget &tree)
{
    QList<QTreeWidgetItem *> nodes;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&tree)); *it; ++it)
        if (inSight(**it))
            nodes.append(*it);
    return nodes;
}

void choose(QWidget *control, const Word &entry)
{
    bringForward(control);
    if (auto *combo = qobject_cast<QComboBox *>(control)) {
        chooseInCombo(combo, entry);
    } else if (auto *list = qobject_cast<QListWidget *>(control)) {
        clickIndex(list, list->model()->index(placeOf(entry, lines(list)), 0));
    } else if (auto *tabs = qobject_cast<QTabWidget *>(control)) {
        chooseInTabs(tabs, entry);
    } else if (auto *tree = qobject_cast<QTreeWidget *>(control)) {
        chooseInTree(tree, entry);
    } else {
        throw Failure(QStringLiteral("%1 has no entries").arg(control->objectName()));
    }
}

void addToSelection(QWidget *control, const QString &text)
{
    auto *list = qobject_cast<QListWidget *>(control);
    if (!list)
        throw Failure(QStringLiteral("%1 is no list").arg(control->objectName()));
    const int place = placeOf({text, text, true}, lines(list));
    if (!list->item(place)->isSelected())
        clickIndex(list, list->model()->index(place, 0), Qt::ControlModifier);
}

void mark(QWidget *control, bool marked)
{
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!button || !button->isCheckable())
        throw Failure(QStringLiteral("%1 is no check box").arg(control->objectName()));
    if (button->isChecked() != marked)
        click(button, Click::Single);
}

void markLine(QWidget *control, const QString &text, bool marked)
{
    auto *list = qobject_cast<QListWidget *>(control);
    if (!list)
        throw Failure(QStringLiteral("%1 is no list").arg(control->objectName()));
    QListWidgetItem *item = list->item(placeOf({text, text, true}, lines(list)));
    if (!item->data(Qt::CheckStateRole).isValid())
        throw Failure(QStringLiteral("the line has no mark"));
    bringForward(list);
    list->setFocus(Qt::MouseFocusReason);
    list->setCurrentItem(item);
    if ((item->checkState() == Qt::Checked) != marked)
        QTest::sendKeyEvent(QTest::Click, list, Qt::Key_Space, QStringLiteral(" "), Qt::NoModifier);
}

void setDate(QWidget *control, QDate date)
{
    if (!date.isValid())
        throw Failure(QStringLiteral("a date stands as 2024-03-15"));
    bringForward(control);
    if (auto *calendar = qobject_cast<QCalendarWidget *>(control)) {
        clickDay(calendar, date);
    } else if (auto *field = qobject_cast<forms::DTPicker *>(control)) {
        field->setFocus(Qt::MouseFocusReason);
        field->setDate(date);
    } else {
        throw Failure(QStringLiteral("%1 is no date control").arg(control->objectName()));
    }
}

void setTime(QWidget *control, QTime time)
{
    auto *field = qobject_cast<QTimeEdit *>(control);
    if (!field || !time.isValid())
        throw Failure(QStringLiteral("%1 is no time control, or the time does not stand as 10:30")
                          .arg(control->objectName()));
    bringForward(control);
    field->setFocus(Qt::MouseFocusReason);
    field->setTime(time);
}

void goToRow(QWidget *control, int row)
{
    QAbstractItemView *view = asView(control);
    clickIndex(view, gridIndex(view, row, 0));
}

void editCell(QWidget *control, int row, int column, const QString &text)
{
    QAbstractItemView *view = asView(control);
    const QModelIndex index = gridIndex(view, row, column);
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        throw Failure(QStringLiteral("the cell is not to be edited"));
    clickIndex(view, index);
    view->setCurrentIndex(index);
    view->edit(index);
    auto *editor = qobject_cast<QLineEdit *>(view->indexWidget(index));
    if (!editor)
        throw Failure(QStringLiteral("the cell opens no field"));
    editor->selectAll();
    if (text.isEmpty())
        QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_Delete, QString(), Qt::NoModifier);
    else
        typeInto(editor, text);
    QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
}

void chooseMenuItem(QAction *action)
{
    auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QList<QMenu *> path;
    if (!popup || !pathTo(popup, action, path)) {
        action->trigger();
        return;
    }
    for (qsizetype i = 0; i + 1 < path.size(); ++i)
        path[i]->setActiveAction(path[i + 1]->menuAction());
    path.last()->setActiveAction(action);
    QTest::sendKeyEvent(QTest::Click, path.last(), Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
}

} // namespace guion
