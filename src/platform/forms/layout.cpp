#include "platform/forms/layout.h"

#include "platform/forms/controls.h"

#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QSplitter>

#include <algorithm>
#include <map>

namespace forms
{

namespace
{

constexpr int margin = 12;
constexpr int spacing = 8;

std::vector<QWidget *> orderOf(const std::vector<Item> &items)
{
    std::vector<QWidget *> order;
    for (const Item &item : items)
        order.insert(order.end(), item.order().begin(), item.order().end());
    return order;
}

std::function<void(QBoxLayout *)> box(QBoxLayout::Direction direction, std::vector<Item> items)
{
    return [direction, items = std::move(items)](QBoxLayout *layout) {
        auto *inner = new QBoxLayout(direction);
        inner->setSpacing(spacing);
        layout->addLayout(inner);
        for (const Item &item : items)
            item.addTo(inner);
    };
}

/// Puts an item into a cell; the cell's layout hangs in the grid first, so that the widgets find their
/// window.
QBoxLayout *addCell(QGridLayout *grid, const Item &item, int row, int column, int columns = 1)
{
    auto *cell = new QHBoxLayout;
    cell->setSpacing(spacing);
    grid->addLayout(cell, row, column, 1, columns);
    item.addTo(cell);
    return cell;
}

bool growsDown(const Item &item)
{
    for (const QWidget *widget : item.order())
        if (widget->sizePolicy().expandingDirections() & Qt::Vertical)
            return true;
    return false;
}

bool keepsWidth(const Item &item)
{
    return item.order().size() == 1 &&
           item.order().front()->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
}

QLabel *labelOf(const FieldRow &row)
{
    auto *label = row.label ? qobject_cast<QLabel *>(row.label) : new QLabel(row.text);
    if (!row.label)
        label->setTextFormat(Qt::PlainText);
    if (label && !row.field.order().empty())
        label->setBuddy(row.field.order().front());
    return label;
}

void addFields(QBoxLayout *layout, const std::vector<FieldRow> &rows)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(margin);
    grid->setVerticalSpacing(spacing);
    layout->addLayout(grid);
    grid->setColumnStretch(1, 1);
    int line = 0;
    bool grows = false;
    for (const FieldRow &row : rows) {
        const bool tall = growsDown(row.field);
        const bool labelled = row.label || !row.text.isNull();
        if (labelled) {
            QWidget *label = row.label && !qobject_cast<QLabel *>(row.label) ? row.label : labelOf(row);
            grid->addWidget(label, line, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
        }
        QBoxLayout *cell = addCell(grid, row.field, line, labelled ? 1 : 0, labelled ? 1 : 2);
        if (keepsWidth(row.field))
            cell->addStretch();
        grid->setRowStretch(line, tall ? 1 : 0);
        grows = grows || tall;
        ++line;
    }
    if (!grows)
        grid->setRowStretch(line, 1); // the rows stay together at the top
}

std::vector<QWidget *> orderOf(const std::vector<FieldRow> &rows)
{
    std::vector<QWidget *> order;
    for (const FieldRow &row : rows) {
        if (row.label)
            order.push_back(row.label);
        order.insert(order.end(), row.field.order().begin(), row.field.order().end());
    }
    return order;
}

/// The fields of the panels that have contents of their own, in their order, for the window that takes them
/// in.
std::map<QWidget *, std::vector<QWidget *>> &orders()
{
    static std::map<QWidget *, std::vector<QWidget *>> all;
    return all;
}

void fill(QWidget *container, const Item &content)
{
    auto *layout = new QVBoxLayout(container);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    content.addTo(layout);
}

} // namespace

Item::Item(QWidget &widget) : Item(&widget)
{
}

Item::Item(QWidget *widget)
    : add_([widget](QBoxLayout *layout) { layout->addWidget(widget); }), order_{widget}
{
}

Item::Item(std::function<void(QBoxLayout *)> add, std::vector<QWidget *> order)
    : add_(std::move(add)), order_(std::move(order))
{
}

Column::Column(Items items) : Column(std::vector<Item>(items))
{
}
Column::Column(std::vector<Item> items) : Item(box(QBoxLayout::TopToBottom, items), orderOf(items))
{
}
Row::Row(Items items) : Row(std::vector<Item>(items))
{
}
Row::Row(std::vector<Item> items) : Item(box(QBoxLayout::LeftToRight, items), orderOf(items))
{
}

FieldRow::FieldRow(const QString &caption, Item content) : text(caption), field(std::move(content))
{
}
FieldRow::FieldRow(QWidget &control, Item content) : label(&control), field(std::move(content))
{
}

Fields::Fields(std::initializer_list<FieldRow> rows) : Fields(std::vector<FieldRow>(rows))
{
}
Fields::Fields(std::vector<FieldRow> rows)
    : Item([rows](QBoxLayout *layout) { addFields(layout, rows); }, orderOf(rows))
{
}

Item Above(const QString &label, Item field)
{
    auto order = field.order();
    auto add = [label, field = std::move(field)](QBoxLayout *layout) {
        auto *column = new QVBoxLayout;
        column->setSpacing(spacing / 4);
        layout->addLayout(column);
        column->addWidget(labelOf({label, field}));
        field.addTo(column);
    };
    return Item(std::move(add), std::move(order));
}

Item Grid(int columns, Items items)
{
    return Grid(columns, std::vector<Item>(items));
}
Item Grid(int columns, std::vector<Item> items)
{
    auto order = orderOf(items);
    auto add = [columns, items = std::move(items)](QBoxLayout *layout) {
        auto *grid = new QGridLayout;
        grid->setSpacing(spacing);
        layout->addLayout(grid);
        for (int column = 0; column < columns; ++column)
            grid->setColumnStretch(column, 1);
        int place = 0;
        for (const Item &item : items) {
            const int wide = qMin(item.columns(), columns);
            if (place % columns + wide > columns)
                place += columns - place % columns;
            addCell(grid, item, place / columns, place % columns, wide);
            place += wide;
        }
    };
    return Item(std::move(add), std::move(order));
}

Item Span(int columns, Item item)
{
    item.columns_ = columns;
    return item;
}

Item Splitter(Qt::Orientation orientation, std::initializer_list<std::pair<Item, int>> shares)
{
    const std::vector<std::pair<Item, int>> parts(shares);
    std::vector<QWidget *> order;
    for (const auto &[item, share] : parts)
        order.insert(order.end(), item.order().begin(), item.order().end());
    auto add = [orientation, parts](QBoxLayout *layout) {
        auto *splitter = new QSplitter(orientation);
        splitter->setChildrenCollapsible(false);
        layout->addWidget(splitter);
        for (const auto &[item, share] : parts) {
            auto *part = new QWidget;
            auto *inner = new QVBoxLayout(part);
            inner->setContentsMargins(0, 0, 0, 0);
            item.addTo(inner);
            splitter->addWidget(part);
            splitter->setStretchFactor(splitter->count() - 1, share);
        }
    };
    return Item(std::move(add), std::move(order));
}

Item Group(const QString &caption, Item content)
{
    auto order = content.order();
    auto add = [caption, content = std::move(content)](QBoxLayout *layout) {
        auto *group = new QGroupBox(caption);
        layout->addWidget(group);
        fill(group, content);
    };
    return Item(std::move(add), std::move(order));
}

Item Group(Frame &frame, Item content)
{
    auto order = content.order();
    auto add = [&frame, content = std::move(content)](QBoxLayout *layout) {
        layout->addWidget(&frame);
        fill(&frame, content);
    };
    return Item(std::move(add), std::move(order));
}

Item Stretch(int factor)
{
    return Item([factor](QBoxLayout *layout) { layout->addStretch(factor); });
}

Item Space(int pixels)
{
    return Item([pixels](QBoxLayout *layout) { layout->addSpacing(pixels); });
}

Item Expanding(Item item, int factor)
{
    auto order = item.order();
    auto add = [item = std::move(item), factor](QBoxLayout *layout) {
        item.addTo(layout);
        layout->setStretch(layout->count() - 1, factor);
    };
    return Item(std::move(add), std::move(order));
}

Item Tabs(SSTab &tabs, std::initializer_list<Page> list)
{
    std::vector<Page> pages(list);
    // the bar and not the whole, which would carry its pages along in the order and leave what follows out of
    // it
    std::vector<QWidget *> order{tabs.tabBar()};
    for (const Page &page : pages)
        order.insert(order.end(), page.content.order().begin(), page.content.order().end());
    auto add = [&tabs, pages = std::move(pages)](QBoxLayout *layout) {
        layout->addWidget(&tabs);
        for (const Page &page : pages) {
            auto *sheet = new QWidget;
            tabs.addTab(sheet, page.caption);
            fill(sheet, page.content);
        }
    };
    return Item(std::move(add), std::move(order));
}

void setContents(QWidget *window, Item content, const std::vector<QWidget *> &last)
{
    fill(window, content);
    std::vector<QWidget *> order;
    for (QWidget *widget : content.order()) {
        if (widget->focusPolicy() != Qt::NoFocus)
            order.push_back(widget);
        else if (const auto inner = orders().find(widget); inner != orders().end())
            order.insert(order.end(), inner->second.begin(), inner->second.end());
    }
    std::stable_partition(order.begin(), order.end(),
                          [&](QWidget *widget) { return std::ranges::find(last, widget) == last.end(); });
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    if (window->focusPolicy() == Qt::NoFocus && !qobject_cast<QDialog *>(window)) {
        orders()[window] = std::move(order);
        QObject::connect(window, &QObject::destroyed, [window] { orders().erase(window); });
    }
}

} // namespace forms
