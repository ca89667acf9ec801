#pragma once

#include "paediatrics/vaccines/planilla.h"
#include "platform/forms/canvas.h"

namespace vacunas
{

/// The vaccination sheet as a picture, which is also the certificate: heads label2(n) with the long names
/// Label3(n), a line linea(n) closing each age row, a marker marca(n) for each dose, the band Shape6, the
/// legend and the place for the signature. A marker is clicked; everything else is only looked at.
class HojaDeVacunas : public forms::Canvas
{
    Q_OBJECT
public:
    HojaDeVacunas();

    void mostrar(const Planilla &planilla, const std::optional<EdadDelPlan> &edad);
    void mostrarCertificado(const QString &texto);
    /// The number of a marker by its name; nothing for another item.
    std::optional<int> numeroDe(const QString &item) const;

private:
    forms::CanvasItem &inerte(const QString &nombre, QPointF lugar, forms::Look aspecto);
    forms::CanvasItem &marca(int numero);
    void dibujarFilas();
    void dibujarLeyenda();
    void dibujarFirma();
    void mostrarMarca(forms::CanvasItem &item, const Marca &marca);

    std::vector<forms::CanvasItem *> marcas_;
};

} // namespace vacunas
