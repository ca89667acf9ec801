#pragma once

#include <QObject>
#include <QRectF>
#include <QWidget>

#include <memory>
#include <vector>

namespace charts
{

/// A point marker of a chart: a small picture with a tool tip. It is no widget of its own, so that a chart
/// of a whole practice can hold a hundred thousand.
class Marcador : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Left READ izquierda)
    Q_PROPERTY(int Top READ arriba)
    Q_PROPERTY(int Width READ tamano)
    Q_PROPERTY(int Height READ tamano)
    Q_PROPERTY(bool Visible MEMBER visible_)
    Q_PROPERTY(QString ToolTipText MEMBER tip_)
public:
    static constexpr double lado = 150; ///< twips

    Marcador(int indice, QPointF centro, QString tip);

    double left() const { return centro_.x() - lado / 2; }
    double top() const { return centro_.y() - lado / 2; }
    QPointF centro() const { return centro_; } ///< twips
    const QString &tip() const { return tip_; }

private:
    int izquierda() const { return qRound(left()); }
    int arriba() const { return qRound(top()); }
    int tamano() const { return qRound(lado); }

    QPointF centro_;
    QString tip_;
    bool visible_ = true;
};

/// The layer of markers above a chart picture; the last one put is in front.
class CapaDeMarcadores : public QWidget
{
    Q_OBJECT
public:
    /// `origen` (twips) is where the layer's corner stands in the coordinates of the markers.
    CapaDeMarcadores(QWidget *parent, QPointF origen);

    /// Takes all markers away.
    void quitar();
    /// Adds the next element of `eldot`, centred on a point (twips).
    void poner(QPointF centro, const QString &tip);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    const Marcador *en(QPointF pixel) const;

    QPointF origen_;
    std::vector<std::unique_ptr<Marcador>> eldot_;
};

} // namespace charts
