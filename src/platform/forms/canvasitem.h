#pragma once

#include "platform/forms/drawn.h"

#include <QFont>
#include <QGraphicsObject>
#include <QImage>
#include <QPainterPath>

#include <memory>
#include <variant>

class QSvgRenderer;

namespace forms
{

class Canvas;

/// A picture that is drawn at any size: vectors where the file has them. Copies share it.
class Picture
{
public:
    Picture() = default;
    /// Throws basic::Error 53 when the file is missing, 481 when it is no picture.
    explicit Picture(const QString &file);
    bool isNull() const { return !vectors_ && image_.isNull(); }
    QSizeF sizeTwips() const; ///< as large as it was made, a pixel being one of the screen's
    void paint(QPainter &painter, const QRectF &target) const;

private:
    std::shared_ptr<QSvgRenderer> vectors_;
    QImage image_;
};

/// What an item of a canvas looks like. Measures are twips from the item's own top left corner.
struct TextLook {
    QString text;
    QFont font;       ///< its size in points, as on paper
    double width = 0; ///< where lines wrap; 0 for as wide as the text
    QColor colour = Qt::black;
    Qt::Alignment alignment = Qt::AlignLeft;
};
struct PictureLook {
    Picture picture;
    QSizeF size;
};
struct ShapeLook {
    QPainterPath outline;
    QColor fill = Qt::transparent;
    QColor line = Qt::black;
    double lineWidth = 15;
};
using Look = std::variant<TextLook, PictureLook, ShapeLook>;

ShapeLook ellipse(QSizeF size, QColor fill = Qt::transparent, QColor line = Qt::black);
ShapeLook polygon(const QPolygonF &corners, QColor fill = Qt::transparent, QColor line = Qt::black);

/// A named item of a Canvas, which owns it. Its position and measures are twips of the canvas; whether it is
/// seen, its order (zValue), its tool tip and whether it can be used are those of the toolkit's own items.
class CanvasItem : public QGraphicsObject
{
    Q_OBJECT
public:
    QString name() const { return objectName(); }
    Canvas &canvas() const { return canvas_; }
    const Look &look() const { return look_; }
    void setLook(Look look);
    void setFill(const QColor &colour); ///< of a shape
    void setText(const QString &text);  ///< of a text
    QRectF place() const;

    /// Lets the person move it about the canvas, by the keys and, unless told otherwise, by dragging.
    void setMovable(bool movable, bool byMouse = true)
    {
        movable_ = movable;
        draggable_ = movable && byMouse;
    }
    bool isMovable() const { return movable_; }
    /// Only to be looked at: mouse and keyboard pass it by.
    void setInert();
    /// What a screen reader says; without one, the tool tip, the text or the name.
    void setAccessibleName(const QString &name) { accessibleName_ = name; }
    QString accessibleName() const;
    DrawnItem described() const;

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;

private:
    friend class Canvas;
    CanvasItem(Canvas &canvas, const QString &name, QPointF place, Look look);
    void measure();

    Canvas &canvas_;
    Look look_;
    QRectF outline_; ///< of what is drawn, lines aside
    QString accessibleName_;
    QPointF stood_; ///< when it was pressed
    bool movable_ = false;
    bool draggable_ = false;
    bool pressed_ = false;
    bool dragged_ = false;
};

} // namespace forms
