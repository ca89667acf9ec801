#pragma once

#include "platform/forms/chart.h"
#include "specialties/gynaecology/gestacion.h"

#include <QWidget>

/// The controls of a pregnancy over its weeks: uterine height, weight and pressure one above the other.
class GraficoDeControles : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    explicit GraficoDeControles(const QString &nombre);

    void mostrar(std::vector<gestacion::Control> controles);
    std::vector<forms::ChartValue> chartValues() const override;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    std::optional<std::pair<double, double>> extremos(int cuadro) const;
    void pintarCuadro(QPainter &pintor, int numero, const QRectF &cuadro) const;

    std::vector<gestacion::Control> controles_; ///< by week
};
