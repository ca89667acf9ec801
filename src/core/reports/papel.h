#pragma once

#include "platform/printing/printer.h"

#include <QRectF>

namespace forms
{
class Canvas;
}

namespace informes
{

/// What a window prints of itself on upright A4 paper, filled from the top: the document's name as its title,
/// texts and drawings, over as many pages as they take. Throws basic::Error when the printer refuses.
class Papel
{
public:
    explicit Papel(const printing::Choice &impresora);

    /// Wraps at the margin.
    void escribir(const QString &texto, int puntos, bool negrita = false);
    /// As wide as the sheet; on a new page where the rest of this one is too low.
    void dibujar(forms::Canvas &dibujo);
    void terminar() { trabajo_.finish(); }

private:
    QPainter &enTwips();
    void pasarDePagina();

    printing::Job trabajo_;
    QRectF lugar_;
    double abajo_ = 0;
};

} // namespace informes
