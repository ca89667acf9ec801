#pragma once

#include "platform/forms/canvas.h"

namespace agudeza
{

/// Acuity by age: tenths from "10/10" at the top to "1/10", years from 1 to 17 across. The points are
/// `Sh(n)`.
class Curva : public forms::Canvas
{
    Q_OBJECT
public:
    struct Punto {
        double anios, valor;
        QString dice;
    };

    explicit Curva(const QString &nombre);

    /// In the place of those that were there.
    void ponerPuntos(const std::vector<Punto> &puntos);
    /// The corner of a point, in twips.
    static QPointF lugar(double anios, double valor);

private:
    void trazarEscala();
    std::vector<forms::CanvasItem *> puntos_;
};

} // namespace agudeza
