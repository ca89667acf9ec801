#include "platform/forms/placement.h"

#include "platform/forms/dbgrid.h"
#include "platform/settings/settings.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace forms
{

namespace
{

const QString section = QStringLiteral("Ventanas");

/// Asks for the room that its contents want, and makes do with less.
class Sheet : public QScrollArea
{
public:
    QSize sizeHint() const override
    {
        return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width() + 2, 2);
    }
    QSize minimumSizeHint() const override { return {160, 120}; }
};

enum class End { Top, Bottom };

/// Takes the row of buttons out that a window's column begins or ends with; null when it has none there. They
/// stay in sight while the rest scrolls.
QLayout *takeCommands(QLayout &contents, End end)
{
    auto *column = contents.count() == 1 ? qobject_cast<QBoxLayout *>(contents.itemAt(0)->layout()) : nullptr;
    if (!column || column->direction() != QBoxLayout::TopToBottom || column->count() < 2)
        return nullptr;
    const int place = end == End::Top ? 0 : column->count() - 1;
    auto *row = qobject_cast<QBoxLayout *>(column->itemAt(place)->layout());
    if (!row || row->direction() != QBoxLayout::LeftToRight)
        return nullptr;
    for (int i = 0; i < row->count(); ++i)
        if (qobject_cast<QPushButton *>(row->itemAt(i)->widget())) {
            column->takeAt(place);
            row->setParent(nullptr);
            return row;
        }
    return nullptr;
}

QString joined(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts += QString::number(number);
    return texts.join(u'x');
}

QList<int> numbers(const QString &text)
{
    QList<int> all;
    for (const QString &part : text.split(u'x', Qt::SkipEmptyParts))
        all += part.toInt();
    return all;
}

QString columnsKey(const QWidget &window, const DBGrid &grid)
{
    return window.objectName() + u' ' + grid.objectName();
}

} // namespace

void fitInto(QWidget &window, QSize room)
{
    QLayout *contents = window.layout();
    if (!contents)
        return;
    const QSize least = contents->totalMinimumSize();
    if (least.width() <= room.width() && least.height() <= room.height())
        return;
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    const QMargins margins = contents->contentsMargins();
    QLayout *head = takeCommands(*contents, End::Top);
    QLayout *foot = takeCommands(*contents, End::Bottom);
    auto *sheet = new Sheet;
    auto *inner = new QWidget;
    inner->setLayout(contents);
    sheet->setWidget(inner);
    sheet->setWidgetResizable(true);
    sheet->setFrameShape(QFrame::NoFrame);
    auto *outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(sheet);
    for (QLayout *row : {head, foot}) {
        if (!row)
            continue;
        row->setContentsMargins(margins);
        outer->insertLayout(row == head ? 0 : -1, row);
    }
}

QSize rememberedSize(const QWidget &window, QSize natural, QSize room)
{
    const QList<int> kept = numbers(settings::getSetting(section, window.objectName()));
    const QSize wanted = kept.size() == 2 ? QSize(kept[0], kept[1]) : natural;
    return wanted.expandedTo(window.minimumSizeHint()).boundedTo(room);
}

void rememberSize(const QWidget &window, QSize size)
{
    settings::saveSetting(section, window.objectName(), joined({size.width(), size.height()}));
}

void restoreColumns(const QWidget &window)
{
    for (auto *grid : window.findChildren<DBGrid *>()) {
        const QList<int> widths = numbers(settings::getSetting(section, columnsKey(window, *grid)));
        for (int column = 0; column < widths.size() && column < grid->horizontalHeader()->count(); ++column)
            grid->setColumnWidth(column, widths[column]);
    }
}

void rememberColumns(const QWidget &window)
{
    for (auto *grid : window.findChildren<DBGrid *>()) {
        if (!grid->columnsMoved())
            continue;
        QList<int> widths;
        for (int column = 0; column < grid->horizontalHeader()->count(); ++column)
            widths += grid->columnWidth(column);
        settings::saveSetting(section, columnsKey(window, *grid), joined(widths));
    }
}

QPoint placeInside(QPoint wanted, QSize frame, QSize room)
{
    return {qBound(0, wanted.x(), qMax(0, room.width() - frame.width())),
            qBound(0, wanted.y(), qMax(0, room.height() - frame.height()))};
}

} // namespace forms
