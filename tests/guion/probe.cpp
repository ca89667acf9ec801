#include "guion/probe.h"

#include "guion/choose.h"
#include "guion/compare.h"
#include "platform/forms/chart.h"
#include "platform/forms/colour.h"
#include "platform/forms/dtpicker.h"
#include "platform/forms/tag.h"
#include "platform/forms/twips.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
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
        for (const QTreeWidgetItem *node : visibleNodes(*tree))
            texts.append(node->text(0));
    } else if (const auto *chart = dynamic_cast<const forms::Charted *>(&object)) {
        for (const forms::ChartValue &entry : chart->chartValues())
            texts.append(entry.label + u'=' + scriptForm(basic::Value(entry.value)));
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
        return QString::number(visibleNodes(*tree).indexOf(tree->currentItem()));
    }
    return {};
}

QString currentCell(const QAbstractItemView &view)
{
    return view.currentIndex().data().toString();
}

/// With the mnemonic's mark.
QString captionOf(const QObject &object)
{
    if (const auto *button = as<QAbstractButton>(object))
        return button->text();
    if (const auto *group = as<QGroupBox>(object))
        return group->title();
    if (const auto *action = as<QAction>(object))
        return action->text();
    if (const auto *label = as<QLabel>(object))
        return label->text();
    return {};
}

QString textOf(const QObject &object)
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
        return withoutMnemonic(captionOf(object));
    if (const auto *widget = as<QWidget>(object))
        return widget->windowTitle();
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
    if (const auto *slider = as<QAbstractSlider>(object))
        return QString::number(slider->value());
    return textOf(object);
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
    static const Reader text = [](const QObject &object, const Arguments &) { return textOf(object); };
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

/// What is read of a drawn item; its place counts from the corner of the drawing.
const std::map<QString, QString (*)(const forms::DrawnItem &)> &drawnReaders()
{
    using Item = forms::DrawnItem;
    static const std::map<QString, QString (*)(const Item &)> table{
        {"Caption", [](const Item &i) { return i.caption; }},
        {"Text", [](const Item &i) { return i.caption; }},
        {"ToolTipText", [](const Item &i) { return i.toolTip; }},
        {"Tag", [](const Item &i) { return i.tag; }},
        {"Enabled", [](const Item &i) { return scriptForm(i.enabled); }},
        {"BackColor", [](const Item &i) { return QString::number(forms::toColourValue(i.backColor)); }},
        {"ForeColor", [](const Item &i) { return QString::number(forms::toColourValue(i.foreColor)); }},
        {"Left", [](const Item &i) { return QString::number(qRound(i.place.left())); }},
        {"Top", [](const Item &i) { return QString::number(qRound(i.place.top())); }},
        {"Width", [](const Item &i) { return QString::number(qRound(i.place.width())); }},
        {"Height", [](const Item &i) { return QString::number(qRound(i.place.height())); }},
    };
    return table;
}

std::optional<QString> readDrawn(const Target &target, const QString &property)
{
    if (property == u"Visible") {
        const auto *drawing = qobject_cast<const QWidget *>(target.object);
        return scriptForm(target.drawn->visible && drawing->isVisible());
    }
    const auto reader = drawnReaders().find(property);
    return reader == drawnReaders().end() ? std::nullopt : std::optional(reader->second(*target.drawn));
}

std::optional<QString> readControl(const QObject &object, const Property &property)
{
    if (!object.isWidgetType() && !as<QAction>(object)) {
        const QVariant value = object.property(property.name.toUtf8().constData());
        if (value.isValid())
            return value.typeId() == QMetaType::Bool ? scriptForm(value.toBool()) : value.toString();
    }
    const auto reader = readers().find(property.name);
    return reader == readers().end() ? std::nullopt : reader->second(object, property.arguments);
}

} // namespace

QString rawText(const Target &target)
{
    const QString caption = target.drawn ? QString() : captionOf(*target.object);
    return caption.isEmpty() ? visibleText(target) : caption;
}

QString visibleText(const Target &target)
{
    return target.drawn ? target.drawn->caption : textOf(*target.object);
}

bool isPropertyName(const QString &name)
{
    return readers().count(name) != 0;
}

QString readProperty(const Target &target, const Property &property)
{
    const auto read = target.drawn ? readDrawn(target, property.name) : readControl(*target.object, property);
    if (!read)
        throw Failure(QStringLiteral("the control has no %1").arg(property.name));
    return *read;
}

} // namespace guion
