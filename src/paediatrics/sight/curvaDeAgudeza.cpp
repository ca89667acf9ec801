#include "paediatrics/sight/curvaDeAgudeza.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace agudeza
{

namespace
{

constexpr double altoDeDecimo = 480, anchoDeAnio = 620; // twips
constexpr double ladoDePunto = 150;
constexpr int decimos = 10, ultimoAnio = 17;
constexpr double filas = decimos + 1, columnas = ultimoAnio + 1;
const QColor tintaDeEscala(0xc9d3da), tintaDeRotulo(0x4a5560), relleno(0xc8141e);

} // namespace

Curva::Curva(const QString &nombre) : Canvas(nombre, {columnas * anchoDeAnio, filas * altoDeDecimo})
{
    setAccessibleName(u"Agudeza visual por edad"_s);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame); // its measures are those of the picture
    setFixedSize(sizeHint());
    trazarEscala();
}

/// The point of 10 tenths stands half a row under the top, and that of none at the foot.
QPointF Curva::lugar(double anios, double valor)
{
    return {anios * anchoDeAnio, (decimos + 0.5 - valor) * altoDeDecimo};
}

void Curva::trazarEscala()
{
    const QPointF medio(ladoDePunto / 2, ladoDePunto / 2);
    QFont letra;
    letra.setPointSizeF(7);
    QPainterPath lineas;
    lineas.addRect(QRectF({}, sizeTwips()));
    const auto rotular = [&](const QString &nombre, QPointF donde, const QString &texto) {
        add(nombre, donde, TextLook{texto, letra, 0, tintaDeRotulo}).setInert();
    };
    for (int decimo = 1; decimo <= decimos; ++decimo) {
        const double y = (lugar(0, decimo) + medio).y();
        lineas.moveTo(0, y);
        lineas.lineTo(sizeTwips().width(), y);
        rotular(u"decimo(%1)"_s.arg(decimo), {20, y - 210}, u"%1/10"_s.arg(decimo));
    }
    for (int anio = 1; anio <= ultimoAnio; ++anio) {
        const double x = (lugar(anio, 0) + medio).x();
        lineas.moveTo(x, 0);
        lineas.lineTo(x, sizeTwips().height());
        rotular(u"anio(%1)"_s.arg(anio), {x + 20, sizeTwips().height() - 210}, QString::number(anio));
    }
    CanvasItem &escala = add(u"escala"_s, {}, ShapeLook{lineas, Qt::transparent, tintaDeEscala, 8});
    escala.setInert();
    escala.setZValue(-1);
}

void Curva::ponerPuntos(const std::vector<Punto> &puntos)
{
    qDeleteAll(puntos_);
    puntos_.clear();
    for (const Punto &punto : puntos) {
        CanvasItem &marca = add(u"Sh(%1)"_s.arg(puntos_.size()), lugar(punto.anios, punto.valor),
                                ellipse({ladoDePunto, ladoDePunto}, relleno, Qt::white));
        marca.setToolTip(punto.dice);
        puntos_.push_back(&marca);
    }
}

} // namespace agudeza

#include "moc_curvaDeAgudeza.cpp"
