#include "platform/forms/canvasitem.h"

#include "platform/basic/errors.h"
#include "platform/forms/canvas.h"
#include "platform/forms/tag.h"
#include "platform/forms/twips.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QImageReader>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QSvgRenderer>

#include <utility>

namespace forms
{

namespace
{

enum PictureError { FileNotFound = 53, InvalidPicture = 481 };

constexpr double twipsPerPoint = 20;
constexpr double focusMargin = 30;
/// A thin line is hit by whoever comes as near as this.
constexpr double reach = 90;
constexpr double endless = 1e6;

/// The font as large on a canvas of twips as it is on paper.
QFont inTwips(QFont font)
{
    font.setPixelSize(qRound(font.pointSizeF() * twipsPerPoint));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

int textFlags(const TextLook &look)
{
    return static_cast<int>(look.alignment) | Qt::AlignTop | (look.width > 0 ? Qt::TextWordWrap : 0);
}

QRectF outlineOf(const TextLook &look)
{
    const QRectF room(0, 0, look.width > 0 ? look.width : endless, endless);
    const QSizeF size = QFontMetricsF(inTwips(look.font))
                            .boundingRect(room, (textFlags(look) & ~Qt::AlignHorizontal_Mask), look.text)
                            .size();
    return {QPointF(), QSizeF(look.width > 0 ? look.width : size.width(), size.height())};
}
QRectF outlineOf(const PictureLook &look)
{
    return {QPointF(), look.size};
}
QRectF outlineOf(const ShapeLook &look)
{
    return look.outline.boundingRect();
}

void draw(QPainter &painter, const TextLook &look, const QRectF &outline)
{
    painter.setFont(inTwips(look.font));
    painter.setPen(look.colour);
    painter.drawText(outline, textFlags(look), look.text);
}
void draw(QPainter &painter, const PictureLook &look, const QRectF &outline)
{
    look.picture.paint(painter, outline);
}
void draw(QPainter &painter, const ShapeLook &look, const QRectF &)
{
    painter.setPen(look.lineWidth > 0 ? QPen(look.line, look.lineWidth) : QPen(Qt::NoPen));
    painter.setBrush(look.fill);
    painter.drawPath(look.outline);
}

} // namespace

Picture::Picture(const QString &file)
{
    if (!QFile::exists(file))
        throw basic::Error(FileNotFound, QStringLiteral("No se encontró el archivo '%1'.").arg(file));
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        vectors_ = std::make_shared<QSvgRenderer>(file);
    } else {
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        reader.setAutoTransform(true);
        image_ = reader.read();
    }
    if (vectors_ ? !vectors_->isValid() : image_.isNull())
        throw basic::Error(InvalidPicture, QStringLiteral("'%1' no es una imagen válida.").arg(file));
}

QSizeF Picture::sizeTwips() const
{
    return QSizeF(vectors_ ? vectors_->defaultSize() : image_.size()) * twipsPerPixel;
}

void Picture::paint(QPainter &painter, const QRectF &target) const
{
    if (vectors_)
        vectors_->render(&painter, target);
    else if (!image_.isNull())
        painter.drawImage(target, image_);
}

ShapeLook ellipse(QSizeF size, QColor fill, QColor line)
{
    ShapeLook look{{}, fill, line};
    look.outline.addEllipse(QRectF(QPointF(), size));
    return look;
}

ShapeLook polygon(const QPolygonF &corners, QColor fill, QColor line)
{
    ShapeLook look{{}, fill, line};
    look.outline.addPolygon(corners);
    look.outline.closeSubpath();
    return look;
}

CanvasItem::CanvasItem(Canvas &canvas, const QString &name, QPointF place, Look look)
    : canvas_(canvas), look_(std::move(look))
{
    setObjectName(name);
    setFlag(ItemIsFocusable);
    setAcceptHoverEvents(true);
    setPos(place);
    measure();
}

void CanvasItem::measure()
{
    prepareGeometryChange();
    outline_ = std::visit([](const auto &look) { return outlineOf(look); }, look_);
    update();
}

void CanvasItem::setLook(Look look)
{
    look_ = std::move(look);
    measure();
}

void CanvasItem::setFill(const QColor &colour)
{
    std::get<ShapeLook>(look_).fill = colour;
    update();
}

void CanvasItem::setText(const QString &text)
{
    std::get<TextLook>(look_).text = text;
    measure();
}

void CanvasItem::setInert()
{
    setFlag(ItemIsFocusable, false);
    setAcceptHoverEvents(false);
    setAcceptedMouseButtons(Qt::NoButton);
}

QRectF CanvasItem::place() const
{
    return outline_.translated(pos());
}

QString CanvasItem::accessibleName() const
{
    const DrawnItem seen = described();
    for (const QString &text : {accessibleName_, seen.toolTip, seen.caption})
        if (!text.isEmpty())
            return text;
    return name();
}

DrawnItem CanvasItem::described() const
{
    DrawnItem seen{name(), place()};
    seen.toolTip = toolTip();
    seen.tag = forms::tag(this);
    seen.visible = isVisible();
    seen.enabled = isEnabled();
    if (const auto *text = std::get_if<TextLook>(&look_)) {
        seen.caption = text->text;
        seen.foreColor = text->colour;
    } else if (const auto *drawn = std::get_if<ShapeLook>(&look_)) {
        seen.backColor = drawn->fill;
        seen.foreColor = drawn->line;
    }
    return seen;
}

QRectF CanvasItem::boundingRect() const
{
    const auto *drawn = std::get_if<ShapeLook>(&look_);
    const double margin = focusMargin + (drawn ? drawn->lineWidth : 0);
    return outline_.adjusted(-margin, -margin, margin, margin);
}

QPainterPath CanvasItem::shape() const
{
    QPainterPath path;
    if (const auto *drawn = std::get_if<ShapeLook>(&look_)) {
        QPainterPathStroker stroker;
        stroker.setWidth(drawn->fill.alpha() > 0 ? drawn->lineWidth : qMax(drawn->lineWidth, reach));
        path = drawn->outline.united(stroker.createStroke(drawn->outline));
    } else {
        path.addRect(outline_);
    }
    return path;
}

void CanvasItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    std::visit([&](const auto &look) { draw(*painter, look, outline_); }, look_);
    if (!option || !(option->state & QStyle::State_HasFocus))
        return;
    QPen pen(QApplication::palette().color(QPalette::Highlight), 2, Qt::DashLine);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(
        outline_.adjusted(-focusMargin / 2, -focusMargin / 2, focusMargin / 2, focusMargin / 2));
}

void CanvasItem::focusInEvent(QFocusEvent *event)
{
    QGraphicsObject::focusInEvent(event);
    QAccessibleEvent told(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&told);
    emit canvas_.pointedAt(name());
}

void CanvasItem::hoverEnterEvent(QGraphicsSceneHoverEvent *)
{
    emit canvas_.pointedAt(name());
}

void CanvasItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *)
{
    const CanvasItem *focused = canvas_.focused();
    emit canvas_.pointedAt(focused ? focused->name() : QString());
}

void CanvasItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    pressed_ = event->button() == Qt::LeftButton;
    dragged_ = false;
    stood_ = pos();
}

void CanvasItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const QPoint way = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
    dragged_ = dragged_ || (pressed_ && way.manhattanLength() >= QApplication::startDragDistance());
    if (dragged_ && draggable_)
        setPos(canvas_.restingPlace(*this,
                                    stood_ + event->scenePos() - event->buttonDownScenePos(Qt::LeftButton)));
}

void CanvasItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (!std::exchange(pressed_, false) || event->button() != Qt::LeftButton)
        return;
    if (pos() != stood_)
        canvas_.tell(&Canvas::moved, name(), pos());
    else if (shape().contains(event->pos()))
        canvas_.tell(&Canvas::clicked, name());
}

void CanvasItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        canvas_.tell(&Canvas::doubleClicked, name());
}

void CanvasItem::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    event->setAccepted(acceptedMouseButtons() != Qt::NoButton); // the scene asks what lies below an inert one
    if (!event->isAccepted())
        return;
    canvas_.tell(&Canvas::contextMenu, name(), event->screenPos());
}

} // namespace forms

#include "moc_canvasitem.cpp"
