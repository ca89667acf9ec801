#include "paediatrics/charts/marcadores.h"

#include "platform/forms/twips.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace charts
{

CapaDeMarcadores::CapaDeMarcadores(QWidget *parent, QPointF origen) : QWidget(parent), origen_(origen)
{
    setObjectName(QStringLiteral("capaDeMarcadores"));
}

void CapaDeMarcadores::quitar()
{
    eldot_.clear();
    update();
}

void CapaDeMarcadores::poner(QPointF centro, const QString &tip, const QString &comentario)
{
    eldot_.push_back({QRectF(centro - QPointF(lado, lado) / 2, QSizeF(lado, lado)), tip, comentario});
    update();
}

std::vector<forms::DrawnItem> CapaDeMarcadores::drawnItems() const
{
    std::vector<forms::DrawnItem> items;
    for (const Marcador &marcador : eldot_) {
        items.push_back({QStringLiteral("eldot(%1)").arg(items.size()), marcador.lugar});
        items.back().toolTip = marcador.tip;
    }
    return items;
}

QPoint CapaDeMarcadores::reveal(QPointF twips)
{
    return ((twips - origen_) / forms::twipsPerPixel).toPoint();
}

void CapaDeMarcadores::paintEvent(QPaintEvent *event)
{
    // One drawing of the marker serves all: it is stamped at each point.
    const double pixels = forms::toPixels(lado);
    const double ratio = devicePixelRatioF() * 2;
    QPixmap sello(QSize(static_cast<int>(pixels * ratio), static_cast<int>(pixels * ratio)));
    sello.setDevicePixelRatio(ratio);
    sello.fill(Qt::transparent);
    {
        QPainter painter(&sello);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(QColor(200, 20, 30));
        painter.drawEllipse(QRectF(1, 1, pixels - 2, pixels - 2));
    }
    QPainter painter(this);
    const QRectF visible = QRectF(event->rect()).adjusted(-pixels, -pixels, pixels, pixels);
    for (const Marcador &marcador : eldot_) {
        const QPointF esquina = (marcador.lugar.topLeft() - origen_) / forms::twipsPerPixel;
        if (visible.contains(esquina))
            painter.drawPixmap(esquina, sello);
    }
}

const CapaDeMarcadores::Marcador *CapaDeMarcadores::en(QPointF pixel) const
{
    const QPointF twips = pixel * forms::twipsPerPixel + origen_;
    for (auto marcador = eldot_.rbegin(); marcador != eldot_.rend(); ++marcador)
        if (marcador->lugar.contains(twips))
            return &*marcador;
    return nullptr;
}

QString CapaDeMarcadores::leyendaEn(QPointF pixel) const
{
    const Marcador *marcador = en(pixel);
    if (!marcador)
        return {};
    return marcador->comentario.isEmpty() ? marcador->tip
                                          : marcador->tip + QLatin1Char('\n') + marcador->comentario;
}

bool CapaDeMarcadores::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), leyendaEn(help->pos()), this); // an empty text hides the one before
    return true;
}

} // namespace charts

#include "moc_marcadores.cpp"
