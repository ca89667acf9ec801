#pragma once

#include "figures/grafico.h"

#include <QPainterPath>

namespace figures
{

/// Where everything of a figure stands in a place: what painting draws and pointing asks.
struct Disposicion {
    QRectF titulo, dibujo;
    std::vector<QPainterPath> formas; ///< of each value: its bar, slice or point
};
Disposicion disponer(const QRectF &lugar, const QFontMetricsF &letra, const Figura &figura, Tipo tipo);

/// From 0 to the end of the scale: 1, 2 or 5 times a power of ten a step.
struct Escala {
    double hasta = 1, paso = 1;
};
Escala escalaPara(double mayor);

} // namespace figures
