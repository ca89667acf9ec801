#include "specialties/cardiology/escalaDelImc.h"

#include "platform/basic/runtime.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr double mitadDelBoton = 6; ///< of the slider: how far its ends stay from the window's
struct Tramo {
    const char *palabra;
    QColor fondo;
};
const Tramo tramos[] = {
    {"Escaso", QColor(0xfd, 0xee, 0xc4)},
    {"Normal", QColor(0xd3, 0xee, 0xd8)},
    {"Excesivo", QColor(0xf8, 0xd3, 0xcd)},
};

} // namespace

EscalaDelImc::EscalaDelImc(const QString &nombre)
{
    setObjectName(nombre);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setNormal(std::nullopt);
}

void EscalaDelImc::setNormal(std::optional<std::pair<double, double>> normal)
{
    normal_ = normal;
    setToolTip(normal ? u"Normal: de %1 a %2"_s.arg(basic::format(normal->first, u"0.0"),
                                                    basic::format(normal->second, u"0.0"))
                      : QString());
    setAccessibleName(toolTip());
    update();
}

QSize EscalaDelImc::sizeHint() const
{
    return {280, fontMetrics().height() + 8};
}

void EscalaDelImc::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    const double ancho = width() - 2 * mitadDelBoton;
    const double limites[] = {0, normal_ ? normal_->first : hasta / 3,
                              normal_ ? std::min(normal_->second, hasta) : hasta / 3 * 2, hasta};
    for (std::size_t i = 0; i < std::size(tramos); ++i) {
        const QRectF lugar(mitadDelBoton + limites[i] / hasta * ancho, 0,
                           (limites[i + 1] - limites[i]) / hasta * ancho, height());
        if (normal_)
            pintor.fillRect(lugar, tramos[i].fondo);
        pintor.setPen(palette().color(normal_ ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        pintor.drawText(lugar.adjusted(-20, 0, 20, 0), Qt::AlignCenter, QString::fromUtf8(tramos[i].palabra));
    }
}

#include "moc_escalaDelImc.cpp"
