#pragma once

#include "platform/forms/chart.h"

#include <QWidget>

namespace figures
{

/// The kinds of chart, by the number before their name in the list.
enum class Tipo { Torta = 1, Torta3D, Barras, Barras3D, Gantt, Lineas, LogLineas, Areas, Puntos, Polar, Hlc };

/// One value of a chart and the label it stands at.
struct Dato {
    QString rotulo;
    double valor = 0;
};

/// What a chart shows.
struct Figura {
    QString titulo, sobre; ///< `sobre` says of how many it is
    QString ejeX, ejeY;
    std::vector<Dato> datos;
};

/// Draws the figure into a place of any device, in the letters of the painter. The colours can be told apart
/// by who does not see red or green.
void dibujar(QPainter &pintor, const QRectF &lugar, const Figura &figura, Tipo tipo);
/// The colour of the nth slice, and of the references beside a chart.
QColor color(int n);

/// A chart on the screen. The value under the pointer is told, and a click tells which it was.
class Grafico : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    explicit Grafico(const QString &nombre);

    void mostrar(Figura figura, Tipo tipo);
    const Figura &figura() const { return figura_; }
    std::vector<forms::ChartValue> chartValues() const override;

    /// Asks where to and keeps it as a picture, as vectors or as a table, by the name's ending. Throws
    /// basic::Error when the file cannot be written.
    void guardar() const;
    /// Asks for the printer and prints it on a lying sheet.
    void imprimir() const;

signals:
    void elegido(int dato);

protected:
    void paintEvent(QPaintEvent *evento) override;
    bool event(QEvent *evento) override; // the tips of the values
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    int datoEn(QPointF punto) const; ///< -1 beside all

    Figura figura_;
    Tipo tipo_ = Tipo::Barras;
};

} // namespace figures
