#pragma once

#include "platform/forms/chart.h"
#include "specialties/cardiology/pesos.h"

#include <QWidget>

/// The weights of a period over its days, each weighing a point, the points joined.
class GraficoDePesos : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    explicit GraficoDePesos(const QString &nombre);

    void mostrar(std::vector<pesos::Punto> puntos, basic::Date desde, basic::Date hasta);
    /// Grams by day.
    std::vector<forms::ChartValue> chartValues() const override;
    /// As a sheet of paper shows it.
    QImage imagen(QSize medida) const;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    void pintar(QPainter &pintor, const QRectF &hoja) const;

    std::vector<pesos::Punto> puntos_; ///< by day
    basic::Date desde_, hasta_;
};
