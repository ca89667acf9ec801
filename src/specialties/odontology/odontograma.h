#pragma once

#include "platform/forms/canvas.h"
#include "specialties/odontology/esquema.h"

#include <vector>

namespace odonto
{

/// The outline of a face in its tooth's square, the corner of the square being the origin.
QPainterPath contornoDeCara(int cara, double lado = anchoDePieza);
/// The colour of a number as the chart keeps it.
QColor colorDe(int numero);

/// The tooth chart as a person sees it: of each tooth its picture, its number, its five faces (`cara`), its
/// outline
/// (`shape`), what is marked on it (`marca`, `xh`) and its legend (`le`). It shows a scheme and does not
/// change it.
class Odontograma : public forms::Canvas
{
    Q_OBJECT
public:
    explicit Odontograma(const QString &nombre);

    void mostrar(const Esquema &esquema);
    void mostrarPieza(const Esquema &esquema, int pieza);
    /// Its outline is thicker than the others'; 0 for none.
    void elegir(int pieza);
    /// Frames the teeth that are to be looked at.
    void destacar(const std::vector<int> &miradas);

    std::vector<forms::DrawnItem> drawnItems() const override;

signals:
    /// A face was pressed; the picture of a tooth counts as its centre.
    void caraPulsada(int cara);
    void menuPedido(int cara, QPoint pantalla);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Pieza {
        forms::CanvasItem *contorno, *silueta, *numero, *leyenda, *cruz, *marca;
        std::array<forms::CanvasItem *, carasPorPieza> caras;
    };
    void agregarPieza(int pieza);
    void agregarLados();
    void mostrarCara(const Esquema &esquema, int cara);
    void mostrarMarca(const Marca &marca, int pieza);
    void mostrarLeyenda(const Marca &marca, int pieza);
    void ponerBorde(int pieza, const QColor &color, int ancho);

    std::array<Pieza, piezas + 1> piezas_{};
    std::array<Pintura, ultimaCara + 1> pintadas_;
    std::array<QString, piezas + 1> leyendas_; ///< whole
    int elegida_ = 0;
};

} // namespace odonto
