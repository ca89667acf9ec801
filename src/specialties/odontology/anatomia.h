#pragma once

#include <QPainterPath>

/// The picture of a tooth from its lips' side, in twips of its place on the chart (lugarDelDibujo).
namespace odonto
{

struct Anatomia {
    QPainterPath silueta;   ///< crown and roots
    QPainterPath relieve;   ///< neck and grooves
    QPainterPath conductos; ///< from the crown to the tip of each root
    QRectF corona, raiz;
};

Anatomia anatomia(int pieza);

} // namespace odonto
