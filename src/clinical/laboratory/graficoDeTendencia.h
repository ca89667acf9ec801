#pragma once

#include "clinical/laboratory/tendencia.h"
#include "platform/forms/chart.h"

#include <QWidget>

/// The results of a test over time: a line through its points, the normal band behind it, and the points out
/// of it marked by shape as well as by colour. The place under the mouse tells its result.
class GraficoDeTendencia : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    explicit GraficoDeTendencia(const QString &nombre);

    void mostrar(std::vector<laboratorio::Punto> puntos, const laboratorio::Rango &rango);
    std::vector<forms::ChartValue> chartValues() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override; // the tips of the points

private:
    QRectF lugar() const; ///< of the drawing, inside the labels
    double y(double valor) const;
    QPointF donde(const laboratorio::Punto &punto) const;
    void medir();
    void pintarEscala(QPainter &pintor) const;
    void pintarBanda(QPainter &pintor) const;
    void pintarPuntos(QPainter &pintor) const;

    std::vector<laboratorio::Punto> puntos_;
    laboratorio::Rango rango_;
    double desde_ = 0, hasta_ = 1, paso_ = 1;
};
