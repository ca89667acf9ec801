#pragma once

#include "paediatrics/pressure/presionEnPalabras.h"
#include "platform/dao/recordset.h"
#include "platform/forms/canvas.h"

namespace presion
{

/// Where a value of the reference lies on a picture of this size, which spans 180 months.
QPointF lugarEnCurva(Cual cual, QSizeF tamano, double meses, double valor);
/// Where a measuring lies, so many days after birth, of which the picture spans 5475. The pictures were drawn
/// to these numbers: points and curves stand a little apart, and no one is to align them.
QPointF lugarDeToma(Cual cual, QSizeF tamano, double dias, double valor);

/// The percentile curves of one of the two pressures with a patient's measurings on them, `minima(n)` or
/// `maxima(n)` in the order of their dates.
class Curva : public forms::Canvas
{
    Q_OBJECT
public:
    Curva(const QString &nombre, Cual cual);

    /// The curves of a sex; without figures in the database, none.
    void trazarReferencia(QChar letra);
    /// In the place of those that were there.
    void ponerTomas(const std::vector<Toma> &tomas, basic::Date nacimiento);
    /// Shows which measuring is the current one; nothing for none.
    void destacar(std::optional<int> toma);
    /// The number of a measuring by its item's name; nothing for another item.
    std::optional<int> numeroDe(const QString &item) const;

private:
    void trazarEscala();
    void trazarPercentil(dao::Recordset &filas, int percentil);
    void escribir(const QString &nombre, QPointF lugar, const QString &texto);
    QString punto(int numero) const;

    Cual cual_;
    std::vector<forms::CanvasItem *> puntos_;
    forms::CanvasItem *destacado_ = nullptr;
};

} // namespace presion
