#include "platform/forms/canvasaccess.h"

#include "platform/forms/canvas.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace forms
{

namespace
{

class ItemAccess : public QAccessibleObject
{
public:
    explicit ItemAccess(CanvasItem &item) : QAccessibleObject(&item), item_(item) {}

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(&item_.canvas());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name          ? item_.accessibleName()
               : kind == QAccessible::Description ? item_.toolTip()
                                                  : QString();
    }
    QRect rect() const override
    {
        const QRect inView = item_.canvas().mapFromScene(item_.place()).boundingRect();
        return {item_.canvas().viewport()->mapToGlobal(inView.topLeft()), inView.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = item_.flags().testFlag(QGraphicsItem::ItemIsFocusable);
        state.focused = item_.hasFocus();
        state.movable = item_.isMovable();
        state.invisible = !item_.isVisible();
        state.disabled = !item_.isEnabled();
        return state;
    }

private:
    CanvasItem &item_;
};

/// Its children are its items, not the parts of the scrolling widget.
class CanvasAccess : public QAccessibleWidget
{
public:
    explicit CanvasAccess(Canvas &canvas) : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas)
    {
    }

    int childCount() const override { return static_cast<int>(canvas_.all().size()); }
    QAccessibleInterface *child(int index) const override
    {
        const auto items = canvas_.all();
        return index >= 0 && index < static_cast<int>(items.size())
                   ? QAccessible::queryAccessibleInterface(items[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto items = canvas_.all();
        const auto found = std::find(items.begin(), items.end(), child->object());
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }
    QAccessibleInterface *focusChild() const override
    {
        for (CanvasItem *item : canvas_.all())
            if (item->hasFocus())
                return QAccessible::queryAccessibleInterface(item);
        return nullptr;
    }

private:
    Canvas &canvas_;
};

QAccessibleInterface *make(const QString &, QObject *object)
{
    if (auto *item = qobject_cast<CanvasItem *>(object))
        return new ItemAccess(*item);
    if (auto *canvas = qobject_cast<Canvas *>(object))
        return new CanvasAccess(*canvas);
    return nullptr;
}

} // namespace

void canvasAccess()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(make), true);
}

} // namespace forms
