#include "specialties/odontology/trazos.h"

namespace odonto
{

namespace
{

constexpr double margen = 25;

QPainterPath lineas(std::initializer_list<QPolygonF> quebradas)
{
    QPainterPath trazo;
    for (const QPolygonF &quebrada : quebradas)
        trazo.addPolygon(quebrada);
    return trazo;
}

/// Two bars across the tooth, as an extraction is asked for.
QPainterPath barras()
{
    constexpr double inclinada = 260, separadas = 110, medio = anchoDePieza / 2,
                     alto = altoDePieza - 2 * margen;
    const auto barra = [&](double x) {
        return QPolygonF({{x + inclinada / 2, margen}, {x - inclinada / 2, margen + alto}});
    };
    return lineas({barra(medio - separadas / 2), barra(medio + separadas / 2)});
}

/// A screw in the place of the root.
QPainterPath tornillo(const QRectF &raiz)
{
    constexpr int vueltas = 5;
    constexpr double mitad = 70;
    const double x = raiz.center().x(), paso = raiz.height() / (vueltas + 1);
    QPainterPath trazo(QPointF(x, raiz.top()));
    trazo.lineTo(x, raiz.bottom());
    for (int vuelta = 1; vuelta <= vueltas; ++vuelta) {
        const double y = raiz.top() + paso * vuelta;
        trazo.moveTo(x - mitad, y - paso / 4);
        trazo.lineTo(x + mitad, y + paso / 4);
    }
    return trazo;
}

/// A crack through the crown.
QPainterPath grieta(const QRectF &corona)
{
    const double x = corona.left(), y = corona.center().y(), cuarto = corona.width() / 4,
                 salto = corona.height() / 4;
    return lineas({QPolygonF({{x, y},
                              {x + cuarto, y - salto},
                              {x + 2 * cuarto, y + salto},
                              {x + 3 * cuarto, y - salto},
                              {x + 4 * cuarto, y}})});
}

} // namespace

QPainterPath cruz()
{
    constexpr double derecha = anchoDePieza - margen, abajo = altoDePieza - margen;
    return lineas(
        {QPolygonF({{margen, margen}, {derecha, abajo}}), QPolygonF({{derecha, margen}, {margen, abajo}})});
}

QPainterPath trazoDe(int tipo, int pieza)
{
    QPainterPath trazo;
    switch (tipo) {
    case Puente:
        trazo.addRect(QRectF(0, 0, anchoDePieza, altoDePieza).adjusted(-margen, 0, margen, 0));
        return trazo;
    case Corona:
        trazo.addEllipse(cuadroDeCaras(pieza).adjusted(-margen, -margen, margen, margen));
        return trazo;
    case Conducto:
        return anatomia(pieza).conductos;
    case Extraccion:
        return barras();
    case Implante:
        return tornillo(anatomia(pieza).raiz);
    case Fractura:
        return grieta(anatomia(pieza).corona);
    default:
        return trazo;
    }
}

} // namespace odonto
