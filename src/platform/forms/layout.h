#pragma once

#include <QString>
#include <Qt>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

class QBoxLayout;
class QLayout;
class QWidget;

/// Layouts declared in one place a screen:
///
///     setContents(this, Column{
///         Group("Datos personales", Fields{{"Nombre :", Text1}, {"Sexo :", mSexo}}),
///         Row{Stretch(), Command1, Command2},
///     });
///
/// Margins and spacing are the same everywhere; a field's label is its buddy, so its mnemonic leads to it.
/// Tab order is the order of declaration.
namespace forms
{

/// Anything that stands in a layout.
class Item
{
public:
    Item(QWidget &widget);
    Item(QWidget *widget);
    explicit Item(std::function<void(QBoxLayout *)> add, std::vector<QWidget *> order = {});

    void addTo(QBoxLayout *layout) const { add_(layout); }
    int columns() const { return columns_; } ///< of a Grid, that it takes
    /// The widgets in tab order.
    const std::vector<QWidget *> &order() const { return order_; }

private:
    std::function<void(QBoxLayout *)> add_;
    std::vector<QWidget *> order_;
    int columns_ = 1;
    friend Item Span(int columns, Item item);
};

using Items = std::initializer_list<Item>;

struct Column : Item {
    Column(Items items);
    explicit Column(std::vector<Item> items);
};

struct Row : Item {
    Row(Items items);
    explicit Row(std::vector<Item> items);
};

/// Labels to the left, fields to the right, aligned. A null caption gives the field the whole width.
struct FieldRow {
    FieldRow(const QString &label, Item field);
    FieldRow(QWidget &label, Item field); ///< a label that is a control of the screen
    QString text;
    QWidget *label = nullptr;
    Item field;
};

struct Fields : Item {
    Fields(std::initializer_list<FieldRow> rows);
    explicit Fields(std::vector<FieldRow> rows);
};

/// A field under its label, for short fields side by side.
Item Above(const QString &label, Item field);

/// Equal columns side by side, items placed row by row.
Item Grid(int columns, Items items);
Item Grid(int columns, std::vector<Item> items);
/// An item of a Grid that takes several of its columns.
Item Span(int columns, Item item);
/// Items side by side, or one above the other, whose shares a person moves; their proportions are `shares`.
Item Splitter(Qt::Orientation orientation, std::initializer_list<std::pair<Item, int>> shares);
/// A titled box; with a Frame, that control is the box.
Item Group(const QString &caption, Item content);
Item Group(class Frame &frame, Item content);
Item Stretch(int factor = 1);
Item Space(int pixels);
/// Gives the item the room that is left over.
Item Expanding(Item item, int factor = 1);

struct Page {
    QString caption;
    Item content;
};
class SSTab;
Item Tabs(SSTab &tabs, std::initializer_list<Page> pages);

/// `last` are the widgets that the Tab key comes to behind all others, wherever they stand.
void setContents(QWidget *window, Item content, const std::vector<QWidget *> &last = {});

} // namespace forms
