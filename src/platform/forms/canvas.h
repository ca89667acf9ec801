#pragma once

#include "platform/forms/canvasitem.h"
#include "platform/forms/drag.h"

#include <QGraphicsView>
#include <QPointer>

namespace forms
{

/// A picture that a person works on: a background with named items on it, each of which is seen, pointed at,
/// clicked and moved on its own, by mouse or by keyboard. The arrow keys lead from item to item, with Ctrl
/// they move one that can be moved; Space and Enter click it. Ctrl and the wheel, + or - zoom.
///
/// Places are twips from the top left corner, whatever the zoom. It prints as vectors.
class Canvas : public QGraphicsView, public Drawn
{
    Q_OBJECT
public:
    Canvas(const QString &name, QSizeF sizeTwips);
    ~Canvas() override;

    QSizeF sizeTwips() const { return sceneRect().size(); }
    void setSizeTwips(QSizeF size);
    /// Throws basic::Error 53 when the file is missing, 481 when it is no picture.
    void loadBackground(const QString &file);

    /// Adds an item in front of the others. The name must be new.
    CanvasItem &add(const QString &name, QPointF place, Look look);
    CanvasItem *item(const QString &name) const; ///< null when there is none
    void remove(const QString &name);
    void clear(); ///< takes all items away, not the background
    /// From back to front.
    std::vector<CanvasItem *> all() const;
    CanvasItem *focused() const; ///< the item that the keys act on; null for none

    /// A control that stands on the canvas and keeps to its place, in twips, however it is scrolled and
    /// zoomed. Its owner must let it go before the canvas.
    void hold(QWidget &control, const QRectF &place);

    /// Items moved by hand come to rest on multiples of so many twips; 0 for anywhere. Lines drawn to show it
    /// are on the screen only.
    void setGrid(double twips, bool shown = false);
    /// Where something put there by hand comes to rest: the nearest place of the grid.
    QPointF snapped(QPointF twips) const;
    void setZoom(double factor);
    double zoom() const { return zoom_; }
    /// The zoom at which the whole canvas is in sight.
    void fit();
    QPointF twipsAt(QPoint surfacePixel) const;

    /// Draws background and items into a rectangle of any device.
    void paint(QPainter &painter, const QRectF &target);

    std::vector<DrawnItem> drawnItems() const override;
    QPointF grip(const DrawnItem &item) const override;
    QWidget &surface() override { return *viewport(); }
    QPoint reveal(QPointF twips) override;
    QSize sizeHint() const override;

signals:
    void clicked(const QString &item);
    void doubleClicked(const QString &item);
    void contextMenu(const QString &item, QPoint screen);
    /// The mouse or the keyboard came to this item; empty when the mouse left and the keyboard is at none.
    void pointedAt(const QString &item);
    /// By hand, to this position.
    void moved(const QString &item, QPointF place);
    /// Where there is no item.
    void backgroundClicked(QPointF twips);
    /// A draggable control was let go here.
    void dropped(QWidget *source, QPointF twips);

protected:
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class CanvasItem;
    struct Held {
        QPointer<QWidget> control;
        QRectF place;
        double points; ///< its letters at their own size
    };
    void placeHeld();
    void drawGrid(QPainter &painter, const QRectF &rect) const;
    void focusNext(QPointF direction);
    void nudge(CanvasItem &item, QPointF direction);
    bool actOnKey(const QKeyEvent &event);
    /// Where an item moved by hand comes to rest: on the grid, within the canvas.
    QPointF restingPlace(const CanvasItem &item, QPointF position) const;
    CanvasItem *pressable(QPoint surfacePixel) const;
    /// Once the toolkit is done with the event at hand, so that a handler may take the item away.
    template <class Signal, class... Arguments>
    void tell(Signal signal, Arguments... arguments)
    {
        QMetaObject::invokeMethod(
            this, [=, this] { (this->*signal)(arguments...); }, Qt::QueuedConnection);
    }

    std::vector<Held> held_; ///< outlives the scene, which scrolls the view once more as it goes
    QGraphicsScene scene_;
    Picture background_;
    double grid_ = 0;
    bool gridShown_ = false;
    double zoom_ = 1;
    bool pressedOnBackground_ = false;
};

} // namespace forms
