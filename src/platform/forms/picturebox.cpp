#include "platform/basic/errors.h"
#include "platform/forms/controls.h"
#include "platform/forms/twips.h"

#include <QFile>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace forms
{

namespace
{

enum PictureError { FileNotFound = 53, InvalidPicture = 481 };

/// Strokes are as broad as a pen of two screen pixels, whatever they are drawn on.
constexpr double strokeTwips = 2 * twipsPerPixel;

/// Beyond so many strokes no single one is seen, and smooth edges would only cost time.
constexpr std::size_t crowd = 5000;

} // namespace

PictureBox::PictureBox(const QString &name, QSizeF sizeTwips) : size_(sizeTwips)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFixedSize(sizeHint());
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void PictureBox::setSizeTwips(QSizeF size)
{
    size_ = size;
    setFixedSize(sizeHint());
    updateGeometry();
}

QSize PictureBox::sizeHint() const
{
    return toPixels(size_).toSize();
}

void PictureBox::loadPicture(const QString &file)
{
    if (!QFile::exists(file))
        throw basic::Error(FileNotFound, QStringLiteral("No se encontró el archivo '%1'.").arg(file));
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage picture = reader.read();
    if (picture.isNull())
        throw basic::Error(InvalidPicture, QStringLiteral("'%1' no es una imagen válida.").arg(file));
    background_ = std::move(picture);
    update();
}

void PictureBox::clear()
{
    strokes_.clear();
    update();
}

void PictureBox::drawLine(QPointF from, QPointF to, QColor colour)
{
    strokes_.push_back({from, to, 0, colour});
    update();
}

void PictureBox::drawCircle(QPointF centre, double radius, QColor colour)
{
    strokes_.push_back({centre, centre, radius, colour});
    update();
}

QImage PictureBox::image() const
{
    QSize pixels = sizeHint();
    if (background_.width() > pixels.width())
        pixels = QSize(background_.width(), qRound(size_.height() * background_.width() / size_.width()));
    QImage result(pixels, QImage::Format_RGB32);
    result.fill(palette().color(backgroundRole()));
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(pixels.width() / size_.width(), pixels.height() / size_.height());
    if (!background_.isNull())
        painter.drawImage(QRectF(QPointF(), size_), background_);
    paintStrokes(painter);
    return result;
}

void PictureBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(toPixels(1.0), toPixels(1.0));
    if (!background_.isNull())
        painter.drawImage(QRectF(QPointF(), size_), background_);
    paintStrokes(painter);
}

void PictureBox::paintStrokes(QPainter &painter) const
{
    const bool crowded = strokes_.size() > crowd;
    painter.setRenderHint(QPainter::Antialiasing, !crowded);
    painter.setBrush(Qt::NoBrush);
    for (const Stroke &stroke : strokes_) {
        painter.setPen(QPen(stroke.colour, crowded ? 0 : strokeTwips, Qt::SolidLine, Qt::RoundCap));
        if (stroke.radius > 0)
            painter.drawEllipse(stroke.from, stroke.radius, stroke.radius);
        else
            painter.drawLine(stroke.from, stroke.to);
    }
}

QPointF PictureBox::twipsAt(const QMouseEvent &event) const
{
    return event.position() * twipsPerPixel;
}

void PictureBox::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        event->accept();
        emit clicked(twipsAt(*event));
    }
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    emit doubleClicked(twipsAt(*event));
}

} // namespace forms
