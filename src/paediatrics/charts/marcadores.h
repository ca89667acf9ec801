#pragma once

#include "platform/forms/drawn.h"

#include <QWidget>

namespace charts
{

/// The layer of markers above a chart picture: small pictures with a tool tip, `eldot(0)` and following, the
/// last one put in front. They are no widgets of their own, so that a chart of a whole practice can hold a
/// hundred thousand.
class CapaDeMarcadores : public QWidget, public forms::Drawn
{
    Q_OBJECT
public:
    static constexpr double lado = 150; ///< of a marker, in twips

    /// `origen` (twips) is where the layer's corner stands in the coordinates of the markers.
    CapaDeMarcadores(QWidget *parent, QPointF origen);

    /// Takes all markers away.
    void quitar();
    /// Adds the next element of `eldot`, centred on a point (twips). A person who points at it reads below
    /// its tool tip what else there is to say of it.
    void poner(QPointF centro, const QString &tip, const QString &comentario = {});
    /// What a person reads who points there; empty beside all markers.
    QString leyendaEn(QPointF pixel) const;

    std::vector<forms::DrawnItem> drawnItems() const override;
    QWidget &surface() override { return *this; }
    QPoint reveal(QPointF twips) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    struct Marcador {
        QRectF lugar; ///< twips
        QString tip, comentario;
    };
    const Marcador *en(QPointF pixel) const;

    QPointF origen_;
    std::vector<Marcador> eldot_;
};

} // namespace charts
