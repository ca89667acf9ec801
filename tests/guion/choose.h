#pragma once

#include "guion/script.h"

#include <QDate>
#include <QList>
#include <QTime>
#include <QWidget>

class QAction;
class QTreeWidget;
class QTreeWidgetItem;

/// Choosing in lists, trees, tabs, calendars, grids and menus.
namespace guion
{

/// The nodes of a tree that are not folded away, from top to bottom.
QList<QTreeWidgetItem *> visibleNodes(const QTreeWidget &tree);

/// Selects an entry by its whole text, or by its 0-based index when `entry` is a bare number.
void choose(QWidget *control, const Word &entry);
/// Adds an entry to the selection of a list.
void addToSelection(QWidget *control, const QString &text);
void mark(QWidget *control, bool marked);
void markLine(QWidget *list, const QString &text, bool marked);
void setDate(QWidget *control, QDate date);
void setTime(QWidget *control, QTime time);
void goToRow(QWidget *grid, int row);
void editCell(QWidget *grid, int row, int column, const QString &text);
void chooseMenuItem(QAction *action);

} // namespace guion
