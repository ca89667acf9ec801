#include "platform/forms/drag.h"

#include "platform/forms/twips.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace forms
{

namespace
{

class DropTarget : public QObject
{
public:
    DropTarget(QWidget &target, std::function<void(const Drop &)> handler)
        : QObject(&target), dropped(std::move(handler))
    {
    }

    const std::function<void(const Drop &)> dropped;
};

DropTarget *targetOf(const QWidget &widget)
{
    for (QObject *child : widget.children())
        if (auto *target = dynamic_cast<DropTarget *>(child))
            return target;
    return nullptr;
}

/// The innermost visible widget at a place of the window, the dragged ones aside.
QWidget *widgetBelow(QWidget *parent, QPoint global, const QWidget *source)
{
    const QObjectList children = parent->children();
    for (auto it = children.rbegin(); it != children.rend(); ++it) {
        auto *child = qobject_cast<QWidget *>(*it);
        if (!child || child == source || child->isWindow() || !child->isVisible() ||
            child->testAttribute(Qt::WA_TransparentForMouseEvents))
            continue;
        if (child->rect().contains(child->mapFromGlobal(global)))
            return widgetBelow(child, global, source);
    }
    return parent;
}

class DragFilter : public QObject
{
public:
    explicit DragFilter(QWidget &control) : QObject(&control), control_(control)
    {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        auto *mouse = dynamic_cast<QMouseEvent *>(event);
        if (!mouse)
            return false;
        if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
            grip_ = mouse->position().toPoint();
        else if (event->type() == QEvent::MouseMove && (mouse->buttons() & Qt::LeftButton))
            move(mouse->globalPosition().toPoint(), mouse->position().toPoint());
        else if (event->type() == QEvent::MouseButtonRelease && shade_)
            return drop(mouse->globalPosition().toPoint());
        return false;
    }

private:
    void move(QPoint global, QPoint local)
    {
        if (!shade_) {
            if ((local - grip_).manhattanLength() < QApplication::startDragDistance())
                return;
            // A picture of the control follows the pointer within the window.
            shade_ = new QLabel(control_.window());
            shade_->setPixmap(control_.grab());
            shade_->setAttribute(Qt::WA_TransparentForMouseEvents);
            shade_->show();
        }
        shade_->move(control_.window()->mapFromGlobal(global) - grip_);
    }

    bool drop(QPoint global)
    {
        delete shade_;
        QWidget *widget = widgetBelow(control_.window(), global, &control_);
        while (widget && !targetOf(*widget))
            widget = widget->parentWidget();
        if (!widget)
            return true;
        const QPointF point = widget->mapFromGlobal(QPointF(global)) * twipsPerPixel;
        targetOf(*widget)->dropped({control_, point, QPointF(grip_) * twipsPerPixel});
        return true; // the control was dragged, not clicked
    }

    QWidget &control_;
    QPoint grip_;
    QPointer<QLabel> shade_;
};

} // namespace

void makeDraggable(QWidget &control)
{
    new DragFilter(control);
}

void acceptDrops(QWidget &target, std::function<void(const Drop &)> dropped)
{
    new DropTarget(target, std::move(dropped));
}

} // namespace forms
