#include "guion/probe.h"

#include "guion/compare.h"
#include "guion/windows.h"
#include "platform/forms/colour.h"
#include "platform/forms/dtpicker.h"
#include "platform/forms/tag.h"
#include "platform/forms/twips.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QTimeEdit>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <functional>
#include <map>

namespace guion
{

namespace
{

using Arguments = std::vector<int>;
using Reader = std::function<std::optional<QString>(const QObject &, const Arguments &)>;

template <class Kind>
const Kind *as(const QObject &object)
{
    return qobject_cast<const Kind *>(&object);
}

int argument(const Arguments &arguments, std::size_t place)
{
    if (place >= arguments.size())
        throw Failure(QStringLiteral("the property needs %1 numbers in parentheses").arg(place + 1));
    return arguments[place];
}

QString cell(const QAbstractItemModel &model, int row, int column)
{
    if (row < 0 || row >= model.rowCount() || column < 0 || column >= model.columnCount())
        throw Failure(QStringLiteral("the grid has %1 rows and %2 columns")
                          .arg(model.rowCount())
                          .arg(model.columnCount()));
    return model.index(row, column).data().toString();
}

std::vector<const QTreeWidgetItem *> nodes(const QTreeWidget &tree)
{
    std::vector<const QTreeWidgetItem *> all;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&tree)); *it; ++it)
        all.push_back(*it);
    return all;
}

QStringList entries(const QObject &object, bool &known)
{
    QStringList texts;
    known = true;
    if (const auto *combo = as<QComboBox>(object)) {
        for (int i = 0; i < combo->count(); ++i)
            texts.append(combo->itemText(i));
    } else if (const auto *list = as<QListWidget>(object)) {
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->text());
    } else if (const auto *tabs = as<QTabWidget>(object)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(withoutMnemonic(tabs->tabText(i)));
    } else if (const auto *tree = as<QTreeWidget>(object)) {
        for (const QTreeWidgetItem *node : nodes(*tree))
            texts.append(node->text(0));
    } else {
        known = false;
    }
    return texts;
}

std::optional<QString> listCount(const QObject &object, const Arguments &)
{
    bool known = false;
    const qsizetype count = entries(object, known).size();
    return known ? std::optional(QString::number(count)) : std::nullopt;
}

std::optional<QString> listEntry(const QObject &object, const Arguments &arguments)
{
    bool known = false;
    const QStringList texts = entries(object, known);
    const int index = argument(arguments, 0);
    if (!known)
        return {};
    if (index < 0 || index >= texts.size())
        throw Failure(QStringLiteral("the list has %1 entries").arg(texts.size()));
    return texts[index];
}

std::optional<QString> listIndex(const QObject &object, const Arguments &)
{
    if (const auto *combo = as<QComboBox>(object))
        return QString::number(combo->currentIndex());
    if (const auto *list = as<QListWidget>(object))
        return QString::number(list->currentRow());
    if (const auto *tabs = as<QTabWidget>(object))
        return QString::number(tabs->currentIndex());
    if (const auto *tree = as<QTreeWidget>(object)) {
        const auto all = nodes(*tree);
        const auto place = std::find(all.begin(), all.end(), tree->currentItem());
        return QString::number(place == all.end() ? -1 : place - all.begin());
    }
    return {};
}

std::optional<QString> value(const QObject &object, const Arguments &)
{
    if (const auto *button = as<QAbstractButton>(object))
        return scriptForm(button->isChecked());
    if (const auto *action = as<QAction>(object))
        return scriptForm(action->isChecked());
    if (const auto *calendar = as<QCalendarWidget>(object))
        return calendar->selectedDate().toString(Qt::ISODate);
    if (const auto *date = as<forms::DTPicker>(object))
        return date->readable() ? scriptForm(date->fieldValue()) : date->text();
    if (const auto *time = as<QTimeEdit>(object))
        return time->time().toString(u"HH:mm:ss");
    if (const auto *number = as<QSpinBox>(object))
        return QString::number(number->value());
    if (const auto *bar = as<QProgressBar>(object))
        return QString::number(bar->value());
    return visibleText(object);
}

const QAbstractItemModel *gridModel(const QObject &object)
{
    const auto *grid = as<QAbstractItemView>(object);
    return grid ? grid->model() : nullptr;
}

std::optional<QString> rows(const QObject &object, const Arguments &)
{
    const auto *model = gridModel(object);
    if (model)
        return QString::number(model->rowCount());
    return as<QAbstractItemView>(object) ? std::optional(QStringLiteral("0")) : std::nullopt;
}

std::optional<QString> columns(const QObject &object, const Arguments &)
{
    const auto *model = gridModel(object);
    return model ? std::optional(QString::number(model->columnCount())) : std::nullopt;
}

std::optional<QString> currentRow(const QObject &object, const Arguments &)
{
    const auto *grid = as<QAbstractItemView>(object);
    return grid ? std::optional(QString::number(grid->currentIndex().row())) : std::nullopt;
}

std::optional<QString> gridCell(const QObject &object, const Arguments &arguments)
{
    const auto *model = gridModel(object);
    if (!model)
        return {};
    return cell(*model, argument(arguments, 0), argument(arguments, 1));
}

std::optional<QString> header(const QObject &object, const Arguments &arguments)
{
    const auto *model = gridModel(object);
    const int column = argument(arguments, 0);
    if (!model)
        return {};
    if (column < 0 || column >= model->columnCount())
        throw Failure(QStringLiteral("the grid has %1 columns").arg(model->columnCount()));
    return model->headerData(column, Qt::Horizontal).toString();
}

/// A child's place is its frame's within the area.
const QWidget *placed(const QWidget *widget)
{
    const auto *frame = qobject_cast<const QMdiSubWindow *>(widget->parentWidget());
    return frame ? frame : widget;
}

Reader inTwips(int (*measure)(const QWidget &))
{
    return [measure](const QObject &object, const Arguments &) -> std::optional<QString> {
        const auto *widget = as<QWidget>(object);
        if (!widget)
            return {};
        return QString::number(qRound(forms::toTwips(measure(*placed(widget)))));
    };
}

Reader ofWidget(QString (*read)(const QWidget &))
{
    return [read](const QObject &object, const Arguments &) -> std::optional<QString> {
        const auto *widget = as<QWidget>(object);
        return widget ? std::optional(read(*widget)) : std::nullopt;
    };
}

std::optional<QString> enabled(const QObject &object, const Arguments &)
{
    if (const auto *action = as<QAction>(object))
        return scriptForm(action->isEnabled());
    return scriptForm(static_cast<const QWidget &>(object).isEnabled());
}

std::optional<QString> visible(const QObject &object, const Arguments &)
{
    if (const auto *action = as<QAction>(object))
        return scriptForm(action->isVisible());
    return scriptForm(static_cast<const QWidget &>(object).isVisible());
}

const std::map<QString, Reader> &readers()
{
    static const Reader text = [](const QObject &object, const Arguments &) { return visibleText(object); };
    static const std::map<QString, Reader> table{
        {"Caption", text},
        {"Text", text},
        {"Enabled", enabled},
        {"Visible", visible},
        {"Value", value},
        {"Tag", [](const QObject &object, const Arguments &) { return forms::tag(&object); }},
        {"BackColor", ofWidget([](const QWidget &w) {
             return QString::number(forms::toColourValue(forms::backColor(w)));
         })},
        {"ForeColor", ofWidget([](const QWidget &w) {
             return QString::number(forms::toColourValue(forms::foreColor(w)));
         })},
        {"ToolTipText", ofWidget([](const QWidget &w) { return w.toolTip(); })},
        {"ListCount", listCount},
        {"ListIndex", listIndex},
        {"List", listEntry},
        {"Rows", rows},
        {"Row", currentRow},
        {"Columns", columns},
        {"Cell", gridCell},
        {"Header", header},
        {"Left", inTwips([](const QWidget &w) { return w.x(); })},
        {"Top", inTwips([](const QWidget &w) { return w.y(); })},
        {"Width", inTwips([](const QWidget &w) { return w.width(); })},
        {"Height", inTwips([](const QWidget &w) { return w.height(); })},
    };
    return table;
}

QString currentCell(const QAbstractItemView &view)
{
    return view.currentIndex().data().toString();
}

} // namespace

QString rawText(const QObject &object)
{
    if (const auto *button = as<QAbstractButton>(object))
        return button->text();
    if (const auto *group = as<QGroupBox>(object))
        return group->title();
    if (const auto *action = as<QAction>(object))
        return action->text();
    if (const auto *label = as<QLabel>(object))
        return label->text();
    return visibleText(object);
}

QString visibleText(const QObject &object)
{
    if (const auto *line = as<QLineEdit>(object))
        return line->text();
    if (const auto *memo = as<QPlainTextEdit>(object))
        return memo->toPlainText();
    if (const auto *rich = as<QTextEdit>(object))
        return rich->toPlainText();
    if (const auto *combo = as<QComboBox>(object))
        return combo->currentText();
    if (const auto *label = as<QLabel>(object))
        return label->buddy() ? withoutMnemonic(label->text()) : label->text();
    if (const auto *spin = as<QAbstractSpinBox>(object))
        return spin->text();
    if (const auto *calendar = as<QCalendarWidget>(object))
        return calendar->selectedDate().toString(u"dd/MM/yyyy");
    if (const auto *tabs = as<QTabWidget>(object))
        return withoutMnemonic(tabs->tabText(tabs->currentIndex()));
    if (const auto *view = as<QAbstractItemView>(object))
        return currentCell(*view);
    if (const auto *bar = as<QStatusBar>(object))
        return bar->currentMessage();
    if (as<QAbstractButton>(object) || as<QGroupBox>(object) || as<QAction>(object))
        return withoutMnemonic(rawText(object));
    if (const auto *widget = as<QWidget>(object))
        return widget->windowTitle();
    return {};
}

bool isPropertyName(const QString &name)
{
    return readers().count(name) != 0;
}

QString readProperty(const QObject &object, const Property &property)
{
    if (!object.isWidgetType() && !as<QAction>(object)) {
        const QVariant value = object.property(property.name.toUtf8().constData());
        if (value.isValid())
            return value.typeId() == QMetaType::Bool ? scriptForm(value.toBool()) : value.toString();
    }
    const auto reader = readers().find(property.name);
    const auto read = reader == readers().end() ? std::nullopt : reader->second(object, property.arguments);
    if (!read)
        throw Failure(QStringLiteral("the control has no %1").arg(property.name));
    return *read;
}

} // namespace guion
