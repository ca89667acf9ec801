#include "platform/reports/pageview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

constexpr int border = 16; ///< around the page, in pixels
constexpr double leastZoom = 0.2, mostZoom = 4;
const QColor deskColour(0x8d, 0x95, 0x9e), markColour(0xd9, 0x6b, 0x00);

} // namespace

PageView::PageView(const QString &name, Report &report) : report_(report)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Páginas del informe"_s);
    verticalScrollBar()->setSingleStep(40);
}

double PageView::scale() const
{
    return zoom() * logicalDpiX() / dotsPerInch;
}

double PageView::zoom() const
{
    const QSizeF page = report_.pageSize() * (logicalDpiX() / dotsPerInch);
    const QSizeF room = viewport()->size() - QSize(2 * border, 2 * border);
    switch (fit_) {
    case Fit::Page:
        return std::clamp(std::min(room.width() / page.width(), room.height() / page.height()), leastZoom,
                          mostZoom);
    case Fit::Width:
        return std::clamp(room.width() / page.width(), leastZoom, 1.5);
    case Fit::None:
        break;
    }
    return zoom_;
}

QSizeF PageView::pageInPixels() const
{
    return report_.pageSize() * scale();
}

void PageView::setFit(Fit fit)
{
    fit_ = fit;
    adjustBars();
    viewport()->update();
}

void PageView::zoomBy(double factor)
{
    zoom_ = std::clamp(zoom() * factor, leastZoom, mostZoom);
    setFit(Fit::None);
}

void PageView::goTo(int page)
{
    const int wanted = report_.hasPage(page) ? page : report_.pagesKnown() - 1;
    page_ = std::max(wanted, 0);
    mark_ = {};
    verticalScrollBar()->setValue(0);
    viewport()->update();
    emit pageChanged();
}

void PageView::mark(int page, const QRectF &dots)
{
    if (page != page_)
        goTo(page);
    mark_ = dots;
    const double top = border + dots.top() * scale();
    if (top < verticalScrollBar()->value() ||
        top > verticalScrollBar()->value() + viewport()->height() - 2 * border)
        verticalScrollBar()->setValue(static_cast<int>(top) - viewport()->height() / 3);
    viewport()->update();
}

void PageView::turn(int pages)
{
    const int wanted = page_ + pages;
    if (wanted < 0 || !report_.hasPage(wanted))
        return;
    goTo(wanted);
    if (pages < 0)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void PageView::adjustBars()
{
    const QSizeF whole = pageInPixels() + QSizeF(2 * border, 2 * border);
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, qRound(whole.height()) - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, qRound(whole.width()) - viewport()->width()));
}

/// The page is painted once for each size; scrolling moves the picture.
const QPixmap &PageView::picture()
{
    const double ratio = devicePixelRatioF();
    const QString key = u"%1 %2 %3 %4"_s.arg(page_).arg(scale()).arg(ratio).arg(report_.complete());
    if (key != pictureKey_) {
        QPixmap fresh((pageInPixels() * ratio).toSize());
        fresh.setDevicePixelRatio(ratio);
        fresh.fill(Qt::white);
        QPainter painter(&fresh);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        painter.scale(scale(), scale());
        report_.paint(painter, page_);
        picture_ = fresh;
        pictureKey_ = key;
    }
    return picture_;
}

void PageView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), deskColour);
    const QSizeF size = pageInPixels();
    const double left = std::max<double>(border, (viewport()->width() - size.width()) / 2);
    const QPointF corner(left - horizontalScrollBar()->value(), border - verticalScrollBar()->value());
    painter.drawPixmap(corner, picture());
    if (mark_.isValid()) {
        painter.setPen(QPen(markColour, 2));
        painter.drawRect(QRectF(corner + mark_.topLeft() * scale(), mark_.size() * scale()));
    }
}

void PageView::resizeEvent(QResizeEvent *)
{
    adjustBars();
}

void PageView::wheelEvent(QWheelEvent *event)
{
    const int turned = event->angleDelta().y();
    if (event->modifiers() & Qt::ControlModifier) {
        zoomBy(turned > 0 ? 1.15 : 1 / 1.15);
        return;
    }
    const QScrollBar *bar = verticalScrollBar();
    if (turned < 0 && bar->value() == bar->maximum())
        turn(1);
    else if (turned > 0 && bar->value() == bar->minimum())
        turn(-1);
    else
        QAbstractScrollArea::wheelEvent(event);
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageDown:
        return turn(1);
    case Qt::Key_PageUp:
        return turn(-1);
    case Qt::Key_Home:
        return goTo(0);
    case Qt::Key_End:
        return goTo(std::numeric_limits<int>::max() - 1);
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace reports

#include "moc_pageview.cpp"
