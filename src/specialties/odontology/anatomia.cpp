#include "specialties/odontology/anatomia.h"

#include "specialties/odontology/piezas.h"

#include <QTransform>

#include <cmath>
#include <vector>

namespace odonto
{

namespace
{

/// Measures as parts of the place: widths of its width, heights of its height.
struct Forma {
    double ancho, cuello, corona, raiz;
    int raices;
    int cuspides; ///< seen from the lips; none for an edge that cuts
};

// By place from the middle line.
constexpr Forma superiores[] = {{.76, .50, .42, .55, 1, 0}, {.62, .42, .39, .55, 1, 0},
                                {.68, .50, .41, .58, 1, 1}, {.66, .50, .36, .55, 2, 1},
                                {.64, .48, .35, .55, 1, 1}, {.94, .76, .34, .54, 3, 2},
                                {.88, .72, .33, .50, 3, 2}, {.78, .62, .31, .42, 3, 2}};
constexpr Forma inferiores[] = {{.52, .36, .38, .52, 1, 0}, {.56, .38, .39, .54, 1, 0},
                                {.62, .46, .42, .57, 1, 1}, {.64, .46, .37, .54, 1, 1},
                                {.68, .50, .36, .54, 1, 1}, {.98, .80, .33, .54, 2, 3},
                                {.92, .74, .32, .52, 2, 2}, {.86, .68, .31, .43, 2, 2}};
constexpr Forma superioresTemporarias[] = {{.64, .46, .34, .44, 1, 0},
                                           {.54, .40, .33, .44, 1, 0},
                                           {.62, .46, .35, .48, 1, 1},
                                           {.74, .56, .30, .42, 3, 2},
                                           {.86, .66, .31, .44, 3, 2}};
constexpr Forma inferioresTemporarias[] = {{.48, .34, .33, .42, 1, 0},
                                           {.52, .36, .34, .44, 1, 0},
                                           {.56, .42, .35, .46, 1, 1},
                                           {.80, .60, .30, .42, 2, 2},
                                           {.92, .70, .31, .44, 2, 3}};

const Forma &formaDe(int pieza)
{
    const auto lugar = static_cast<std::size_t>(posicion(pieza) - 1);
    if (esTemporaria(pieza))
        return esSuperior(pieza) ? superioresTemporarias[lugar] : inferioresTemporarias[lugar];
    return esSuperior(pieza) ? superiores[lugar] : inferiores[lugar];
}

/// An upper tooth of the patient's left: the tips of its cusps on y = 0, its roots upwards, x = 0 its middle,
/// the middle line of the face to the left.
class Trazo
{
public:
    explicit Trazo(const Forma &forma)
        : ancho_(forma.ancho * anchoDePieza), cuello_(forma.cuello * anchoDePieza),
          corona_(forma.corona * altoDelDibujo), raiz_(forma.raiz * altoDelDibujo), raices_(forma.raices),
          cuspides_(forma.cuspides)
    {
    }

    Anatomia anatomia() const
    {
        return {silueta(), relieve(), conductos(), QRectF(-ancho_ / 2, -corona_, ancho_, corona_),
                QRectF(-cuello_ / 2, -corona_ - raiz_, cuello_, raiz_)};
    }

private:
    static constexpr double inclinacion = 22; ///< of a root's tip, backwards
    static constexpr double punta = 14;       ///< half the width of a tip
    static constexpr double abertura = .7;    ///< of the outer roots

    double altoDeCuspide() const { return cuspides_ == 0 ? .03 * corona_ : .2 * corona_; }
    QPointF apice(int raiz) const
    {
        const double abierto = raices_ == 1 ? 0 : abertura * cuello_ * (double(raiz) / (raices_ - 1) - .5);
        const bool delMedio = raices_ == 3 && raiz == 1;
        return {abierto + inclinacion, -corona_ - raiz_ * (raices_ > 1 && !delMedio ? .94 : 1)};
    }
    /// Where two roots part.
    QPointF horqueta(int raiz) const
    {
        return {cuello_ * (double(raiz) / raices_ - .5) + inclinacion / 2, -corona_ - .36 * raiz_};
    }

    QPainterPath silueta() const
    {
        QPainterPath linea(QPointF(-cuello_ / 2, -corona_));
        const double hombro = -altoDeCuspide();
        linea.cubicTo(-.56 * ancho_, -.72 * corona_, -.54 * ancho_, -.35 * corona_, -.44 * ancho_, hombro);
        agregarBorde(linea, hombro);
        linea.cubicTo(.54 * ancho_, -.35 * corona_, .56 * ancho_, -.72 * corona_, cuello_ / 2, -corona_);
        agregarRaices(linea);
        linea.closeSubpath();
        return linea;
    }

    /// The edge of the crown from left to right.
    void agregarBorde(QPainterPath &linea, double hombro) const
    {
        const int lobulos = std::max(cuspides_, 1);
        const double cada = .88 * ancho_ / lobulos;
        for (int i = 0; i < lobulos; ++i) {
            const double desde = -.44 * ancho_ + cada * i;
            const double tras = i + 1 < lobulos ? .6 * hombro : hombro;
            if (cuspides_ == 0) {
                linea.quadTo(desde + .04 * cada, 0, desde + .12 * cada, 0);
                linea.lineTo(desde + .88 * cada, 0);
                linea.quadTo(desde + .96 * cada, 0, desde + cada, tras);
            } else {
                linea.quadTo(desde + .3 * cada, 0, desde + .5 * cada, 0);
                linea.quadTo(desde + .7 * cada, 0, desde + cada, tras);
            }
        }
    }

    /// From the neck's right end to its left.
    void agregarRaices(QPainterPath &linea) const
    {
        for (int raiz = raices_ - 1; raiz >= 0; --raiz) {
            const QPointF desde = linea.currentPosition(), tip = apice(raiz);
            const QPointF hasta = raiz == 0 ? QPointF(-cuello_ / 2, -corona_) : horqueta(raiz);
            const double media = (desde.y() + tip.y()) / 2, vuelta = (hasta.y() + tip.y()) / 2;
            linea.cubicTo(desde.x(), media, tip.x() + 3 * punta, tip.y() + .2 * raiz_, tip.x() + punta,
                          tip.y());
            linea.quadTo(tip.x(), tip.y() - punta, tip.x() - punta, tip.y());
            linea.cubicTo(tip.x() - 3 * punta, tip.y() + .2 * raiz_, hasta.x(), vuelta, hasta.x(), hasta.y());
        }
    }

    QPainterPath relieve() const
    {
        QPainterPath linea(QPointF(-cuello_ / 2, -corona_));
        linea.quadTo(0, -corona_ + .22 * corona_, cuello_ / 2, -corona_);
        for (int surco = 1; surco < cuspides_; ++surco) {
            const double x = .88 * ancho_ * (double(surco) / cuspides_ - .5);
            linea.moveTo(x, -.6 * altoDeCuspide());
            linea.lineTo(x, -.5 * corona_);
        }
        return linea;
    }

    QPainterPath conductos() const
    {
        QPainterPath lineas;
        for (int raiz = 0; raiz < raices_; ++raiz) {
            const QPointF tip = apice(raiz);
            lineas.moveTo(tip.x() * .35, -.55 * corona_);
            lineas.cubicTo(tip.x() * .5, -corona_, tip.x() * .9, -corona_ - .4 * raiz_, tip.x(),
                           tip.y() + 2 * punta);
        }
        return lineas;
    }

    double ancho_, cuello_, corona_, raiz_;
    int raices_, cuspides_;
};

} // namespace

Anatomia anatomia(int pieza)
{
    const Anatomia modelo = Trazo(formaDe(pieza)).anatomia();
    const QRectF lugar = lugarDelDibujo(pieza);
    constexpr double aire = 14;    // between cusps and faces
    constexpr double medida = .93; // of the largest tooth, so that it stays in its place
    QTransform colocar;
    colocar.translate(lugar.center().x(), esSuperior(pieza) ? lugar.bottom() - aire : lugar.top() + aire);
    colocar.scale(esDerecha(pieza) ? -medida : medida, esSuperior(pieza) ? medida : -medida);
    return {colocar.map(modelo.silueta), colocar.map(modelo.relieve), colocar.map(modelo.conductos),
            colocar.mapRect(modelo.corona), colocar.mapRect(modelo.raiz)};
}

} // namespace odonto
