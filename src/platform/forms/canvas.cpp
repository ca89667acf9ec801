#include "platform/forms/canvas.h"

#include "platform/forms/canvasaccess.h"
#include "platform/forms/twips.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace forms
{

namespace
{

constexpr double nearest = 0.25, farthest = 8, zoomStep = 1.25;
/// How far Ctrl and an arrow move an item where there is no grid.
constexpr double step = 60;
/// A place in sight is at least so far from the edge, in pixels.
constexpr int margin = 12;

QPointF directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// How far `to` lies in a direction; what lies aside counts double. Negative when it lies elsewhere.
double distance(QPointF from, QPointF to, QPointF direction)
{
    const QPointF way = to - from;
    const double ahead = QPointF::dotProduct(way, direction);
    const double aside = std::abs(way.x() * direction.y() - way.y() * direction.x());
    return ahead > 0 ? ahead + 2 * aside : -1;
}

bool takesFocus(const CanvasItem &item)
{
    return item.isVisible() && item.isEnabled() && (item.flags() & QGraphicsItem::ItemIsFocusable);
}

} // namespace

Canvas::Canvas(const QString &name, QSizeF sizeTwips)
{
    setObjectName(name);
    setScene(&scene_);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setTransformationAnchor(AnchorUnderMouse);
    setSizeTwips(sizeTwips);
    setZoom(1);
    canvasAccess();
    forms::acceptDrops(*this, [this](const Drop &drop) {
        const QPoint pixel =
            viewport()->mapFrom(this, toPixels(QRectF(drop.point, QSizeF())).topLeft().toPoint());
        emit dropped(&drop.source, twipsAt(pixel));
    });
}

Canvas::~Canvas() = default;

void Canvas::setSizeTwips(QSizeF size)
{
    scene_.setSceneRect(QRectF(QPointF(), size));
    updateGeometry();
}

void Canvas::loadBackground(const QString &file)
{
    background_ = Picture(file);
    resetCachedContent();
    viewport()->update();
}

CanvasItem &Canvas::add(const QString &name, QPointF place, Look look)
{
    Q_ASSERT(!item(name));
    auto *added = new CanvasItem(*this, name, place, std::move(look));
    scene_.addItem(added);
    return *added;
}

CanvasItem *Canvas::item(const QString &name) const
{
    for (CanvasItem *item : all())
        if (item->name() == name)
            return item;
    return nullptr;
}

void Canvas::remove(const QString &name)
{
    delete item(name);
}

void Canvas::clear()
{
    scene_.clear();
}

std::vector<CanvasItem *> Canvas::all() const
{
    std::vector<CanvasItem *> items;
    for (QGraphicsItem *item : scene_.items(Qt::AscendingOrder))
        if (auto *own = dynamic_cast<CanvasItem *>(item))
            items.push_back(own);
    return items;
}

void Canvas::setZoom(double factor)
{
    zoom_ = std::clamp(factor, nearest, farthest);
    setTransform(QTransform::fromScale(zoom_ / twipsPerPixel, zoom_ / twipsPerPixel));
    placeHeld();
}

void Canvas::hold(QWidget &control, const QRectF &place)
{
    control.setParent(viewport());
    held_.push_back({&control, place, control.font().pointSizeF()});
    control.show();
    placeHeld();
}

void Canvas::placeHeld()
{
    for (const Held &held : held_) {
        if (!held.control)
            continue;
        const QPoint corner = mapFromScene(held.place.topLeft());
        const QPoint opposite = mapFromScene(held.place.bottomRight());
        held.control->setGeometry(QRect(corner, QSize(opposite.x() - corner.x(), opposite.y() - corner.y())));
        QFont font = held.control->font();
        font.setPointSizeF(held.points * zoom_);
        held.control->setFont(font);
    }
}

void Canvas::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    placeHeld();
}

void Canvas::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    placeHeld();
}

void Canvas::setGrid(double twips, bool shown)
{
    grid_ = twips;
    gridShown_ = shown;
    viewport()->update();
}

QPointF Canvas::snapped(QPointF twips) const
{
    if (grid_ <= 0)
        return twips;
    return QPointF(std::round(twips.x() / grid_), std::round(twips.y() / grid_)) * grid_;
}

void Canvas::fit()
{
    const QSizeF room = maximumViewportSize();
    const QSizeF whole = toPixels(sizeTwips());
    setZoom(qMin(room.width() / whole.width(), room.height() / whole.height()));
}

QPointF Canvas::twipsAt(QPoint surfacePixel) const
{
    return mapToScene(surfacePixel);
}

void Canvas::paint(QPainter &painter, const QRectF &target)
{
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / sizeTwips().width(), target.height() / sizeTwips().height());
    painter.setClipRect(sceneRect(), Qt::IntersectClip); // what lies beyond the canvas is not in sight either
    background_.paint(painter, sceneRect());
    for (CanvasItem *item : all()) {
        if (!item->isVisible())
            continue;
        painter.save();
        painter.setTransform(item->sceneTransform(), true);
        item->paint(&painter, nullptr, nullptr);
        painter.restore();
    }
    painter.restore();
}

std::vector<DrawnItem> Canvas::drawnItems() const
{
    std::vector<DrawnItem> items;
    for (const CanvasItem *item : all())
        items.push_back(item->described());
    return items;
}

/// The middle where the item can be met there, else a place of it that no other item covers.
QPointF Canvas::grip(const DrawnItem &seen) const
{
    const QRectF place = seen.place;
    const CanvasItem *wanted = item(seen.name);
    const auto meets = [&](QPointF point) { return scene_.itemAt(point, transform()) == wanted; };
    if (meets(place.center()))
        return place.center();
    constexpr int cells = 12;
    for (int row = 1; row < cells; ++row)
        for (int column = 1; column < cells; ++column) {
            const QPointF point =
                place.topLeft() + QPointF(place.width() * column / cells, place.height() * row / cells);
            if (meets(point))
                return point;
        }
    return place.center();
}

QPoint Canvas::reveal(QPointF twips)
{
    ensureVisible(QRectF(twips, QSizeF()), margin, margin);
    return mapFromScene(twips);
}

QSize Canvas::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return toPixels(sizeTwips()).toSize() + QSize(frame, frame);
}

void Canvas::drawBackground(QPainter *painter, const QRectF &rect)
{
    painter->fillRect(rect, palette().color(QPalette::Window));
    painter->fillRect(rect.intersected(sceneRect()), palette().color(QPalette::Base));
    background_.paint(*painter, sceneRect());
    if (gridShown_ && grid_ > 0)
        drawGrid(*painter, rect.intersected(sceneRect()));
}

void Canvas::drawGrid(QPainter &painter, const QRectF &rect) const
{
    painter.setPen(QPen(palette().color(QPalette::Mid), 0));
    for (double x = std::ceil(rect.left() / grid_) * grid_; x <= rect.right(); x += grid_)
        painter.drawLine(QPointF(x, rect.top()), QPointF(x, rect.bottom()));
    for (double y = std::ceil(rect.top() / grid_) * grid_; y <= rect.bottom(); y += grid_)
        painter.drawLine(QPointF(rect.left(), y), QPointF(rect.right(), y));
}

CanvasItem *Canvas::pressable(QPoint surfacePixel) const
{
    for (QGraphicsItem *item : QGraphicsView::items(surfacePixel))
        if (item->isEnabled() && (item->acceptedMouseButtons() & Qt::LeftButton))
            return dynamic_cast<CanvasItem *>(item);
    return nullptr;
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    pressedOnBackground_ = event->button() == Qt::LeftButton && !pressable(event->position().toPoint());
    QGraphicsView::mousePressEvent(event);
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    QGraphicsView::mouseReleaseEvent(event);
    const QPointF twips = mapToScene(event->position().toPoint());
    if (std::exchange(pressedOnBackground_, false) && sceneRect().contains(twips))
        tell(&Canvas::backgroundClicked, twips);
}

void Canvas::contextMenuEvent(QContextMenuEvent *event)
{
    CanvasItem *item = event->reason() == QContextMenuEvent::Keyboard ? focused() : nullptr;
    if (item)
        tell(&Canvas::contextMenu, item->name(), viewport()->mapToGlobal(reveal(item->place().center())));
    else
        QGraphicsView::contextMenuEvent(event);
}

void Canvas::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QGraphicsView::wheelEvent(event);
    setZoom(zoom_ * (event->angleDelta().y() > 0 ? zoomStep : 1 / zoomStep));
}

void Canvas::keyPressEvent(QKeyEvent *event)
{
    if (!actOnKey(*event))
        QGraphicsView::keyPressEvent(event);
}

bool Canvas::actOnKey(const QKeyEvent &event)
{
    const bool control = event.modifiers() & Qt::ControlModifier;
    CanvasItem *item = focused();
    if (const QPointF direction = directionOf(event.key()); item && !direction.isNull()) {
        if (control)
            nudge(*item, direction);
        else
            focusNext(direction);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (item)
            tell(&Canvas::clicked, item->name());
        return item != nullptr;
    case Qt::Key_Plus:
    case Qt::Key_Minus:
        if (control)
            setZoom(zoom_ * (event.key() == Qt::Key_Plus ? zoomStep : 1 / zoomStep));
        return control;
    default:
        return false;
    }
}

CanvasItem *Canvas::focused() const
{
    return dynamic_cast<CanvasItem *>(scene_.focusItem());
}

void Canvas::focusNext(QPointF direction)
{
    const QPointF from = focused()->place().center();
    CanvasItem *next = nullptr;
    double shortest = 0;
    for (CanvasItem *item : all()) {
        const double way = distance(from, item->place().center(), direction);
        if (takesFocus(*item) && way > 0 && (!next || way < shortest)) {
            next = item;
            shortest = way;
        }
    }
    if (next) {
        next->setFocus(Qt::TabFocusReason);
        reveal(next->place().center());
    }
}

void Canvas::nudge(CanvasItem &item, QPointF direction)
{
    if (!item.isMovable())
        return;
    const QPointF before = item.pos();
    item.setPos(restingPlace(item, before + direction * (grid_ > 0 ? grid_ : step)));
    reveal(item.place().center());
    if (item.pos() != before)
        tell(&Canvas::moved, item.name(), item.pos());
}

QPointF Canvas::restingPlace(const CanvasItem &item, QPointF position) const
{
    position = snapped(position);
    const QRectF place = item.place().translated(-item.pos());
    const QSizeF room = sizeTwips();
    return {std::clamp(position.x(), -place.left(), qMax(-place.left(), room.width() - place.right())),
            std::clamp(position.y(), -place.top(), qMax(-place.top(), room.height() - place.bottom()))};
}

/// Whoever comes by keyboard stands on the first item, as one reads.
void Canvas::focusInEvent(QFocusEvent *event)
{
    QGraphicsView::focusInEvent(event);
    const bool byKeyboard =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (!byKeyboard || focused())
        return;
    CanvasItem *first = nullptr;
    const auto order = [](const CanvasItem &item) {
        return std::pair(item.place().top(), item.place().left());
    };
    for (CanvasItem *item : all())
        if (takesFocus(*item) && (!first || order(*item) < order(*first)))
            first = item;
    if (first)
        first->setFocus(Qt::TabFocusReason);
}

} // namespace forms

#include "moc_canvas.cpp"
