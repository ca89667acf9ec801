#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

/// The teeth of the chart, permanent and temporary, by their place in it: two rows of sixteen and two of ten,
/// seen from in front of the patient.
namespace odonto
{

constexpr int piezas = 52; ///< indexed from 1
constexpr int carasPorPieza = 5;
/// Of the faces, those of tooth i being 5i to 5i + 4. The first four belong to no tooth.
constexpr int ultimaCara = carasPorPieza * piezas + carasPorPieza - 1;

/// The faces of a tooth, by their place on the chart.
enum Cara { Arriba, Derecha, Abajo, Izquierda, Centro };

constexpr bool esPieza(int indice)
{
    return indice >= 1 && indice <= piezas;
}
constexpr int piezaDe(int cara)
{
    return cara / carasPorPieza;
}
constexpr int caraDe(int pieza, int cara)
{
    return carasPorPieza * pieza + cara;
}

/// The two digits of the dental notation: 11 to 48, of temporary teeth 51 to 85.
int numeroFdi(int pieza);
bool esSuperior(int pieza);
bool esTemporaria(int pieza);
/// Of the patient's right side, which is drawn on the left.
bool esDerecha(int pieza);
/// From the middle line backwards, 1 to 8.
int posicion(int pieza);

QString nombreDePieza(int pieza); ///< "tercer molar superior izquierdo"
QString nombreDeCara(int cara);   ///< "mesial"

/// Measures on the chart in twips, from the corner of a tooth's outline.
constexpr double anchoDePieza = 530, altoDelDibujo = 600, altoDePieza = 1150;
constexpr double ladoDelCentro = 180;
QRectF lugarDePieza(int pieza); ///< its outline
/// The square of its faces within the outline: towards the other jaw.
QRectF cuadroDeCaras(int pieza);
/// The picture of the tooth within the outline.
QRectF lugarDelDibujo(int pieza);
QPointF lugarDelNumero(int pieza);
QSizeF medidaDelOdontograma();

} // namespace odonto
