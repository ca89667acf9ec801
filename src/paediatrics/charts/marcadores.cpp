#include "paediatrics/charts/marcadores.h"

#include "platform/forms/twips.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace charts
{

Marcador::Marcador(int indice, QPointF centro, QString tip) : centro_(centro), tip_(std::move(tip))
{
    setObjectName(QStringLiteral("eldot(%1)").arg(indice));
}

CapaDeMarcadores::CapaDeMarcadores(QWidget *parent, QPointF origen) : QWidget(parent), origen_(origen)
{
    setObjectName(QStringLiteral("capaDeMarcadores"));
}

void CapaDeMarcadores::quitar()
{
    eldot_.clear();
    update();
}

void CapaDeMarcadores::poner(QPointF centro, const QString &tip)
{
    eldot_.push_back(std::make_unique<Marcador>(static_cast<int>(eldot_.size()), centro, tip));
    eldot_.back()->setParent(this);
    update();
}

void CapaDeMarcadores::paintEvent(QPaintEvent *event)
{
    // One drawing of the marker serves all: it is stamped at each point.
    const double pixels = forms::toPixels(Marcador::lado);
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
    for (const auto &marcador : eldot_) {
        const QPointF esquina = (QPointF(marcador->left(), marcador->top()) - origen_) / forms::twipsPerPixel;
        if (visible.contains(esquina))
            painter.drawPixmap(esquina, sello);
    }
}

const Marcador *CapaDeMarcadores::en(QPointF pixel) const
{
    const QPointF twips = pixel * forms::twipsPerPixel + origen_;
    for (auto marcador = eldot_.rbegin(); marcador != eldot_.rend(); ++marcador)
        if (QRectF((*marcador)->left(), (*marcador)->top(), Marcador::lado, Marcador::lado).contains(twips))
            return marcador->get();
    return nullptr;
}

bool CapaDeMarcadores::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    if (const Marcador *marcador = en(help->pos()))
        QToolTip::showText(help->globalPos(), marcador->tip(), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace charts

#include "moc_marcadores.cpp"
