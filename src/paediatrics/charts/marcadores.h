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
    Q_PROPERTY(double Left READ left)
    Q_PROPERTY(double Top READ top)
    Q_PROPERTY(double Width READ width)
    Q_PROPERTY(double Height READ width)
    Q_PROPERTY(bool Visible MEMBER visible_)
    Q_PROPERTY(QString ToolTipText MEMBER tip_)
public:
    static constexpr double lado = 150; ///< twips

    Marcador(int indice, QPointF centro, QString tip);

    double left() const { return centro_.x() - lado / 2; }
    double top() const { return centro_.y() - lado / 2; }
    double width() const { return lado; }
    QPointF centro() const { return centro_; } ///< twips
    const QString &tip() const { return tip_; }

private:
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
