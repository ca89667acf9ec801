#include "specialties/odontology/piezas.h"

#include <QSizeF>
#include <QStringList>

#include <span>

using namespace Qt::StringLiterals;

namespace odonto
{

namespace
{

/// A row of the chart: its teeth and the number of the first, whether the numbers fall or rise from it.
struct Tramo {
    int primera, ultima, numero, sentido;
};
constexpr Tramo tramos[] = {
    {1, 8, 18, -1},   {9, 16, 21, 1},  {17, 24, 48, -1}, {25, 32, 31, 1},
    {33, 37, 55, -1}, {38, 42, 61, 1}, {43, 47, 85, -1}, {48, 52, 71, 1},
};

/// The rows, by their first tooth, and where they start.
struct Renglon {
    int primera;
    double izquierda;
};
constexpr double margen = 250, margenDeTemporarias = 2160, arriba = 350;
constexpr Renglon renglones[] = {
    {1, margen}, {17, margen}, {33, margenDeTemporarias}, {43, margenDeTemporarias}};
constexpr double paso = 1.2 * anchoDePieza, bajada = 1.5 * altoDePieza;
constexpr double bajoElNumero = 390, altoDeLaLeyenda = 240;
constexpr QPointF delNumero(55, 245);

QPointF esquina(int pieza)
{
    int fila = 0;
    while (fila + 1 < static_cast<int>(std::size(renglones)) && renglones[fila + 1].primera <= pieza)
        ++fila;
    const Renglon &renglon = renglones[fila];
    return {renglon.izquierda + paso * (pieza - renglon.primera), arriba + bajada * fila};
}

/// Quadrants count clockwise from the patient's upper right: 1 to 4, of temporary teeth 5 to 8.
int cuadrante(int pieza)
{
    return (numeroFdi(pieza) / 10 - 1) % 4 + 1;
}

} // namespace

int numeroFdi(int pieza)
{
    for (const Tramo &tramo : tramos)
        if (pieza >= tramo.primera && pieza <= tramo.ultima)
            return tramo.numero + tramo.sentido * (pieza - tramo.primera);
    return 0;
}

bool esSuperior(int pieza)
{
    return cuadrante(pieza) <= 2;
}

bool esTemporaria(int pieza)
{
    return numeroFdi(pieza) > 50;
}

bool esDerecha(int pieza)
{
    return cuadrante(pieza) == 1 || cuadrante(pieza) == 4;
}

int posicion(int pieza)
{
    return numeroFdi(pieza) % 10;
}

QString nombreDePieza(int pieza)
{
    static const QStringList permanentes = {u"incisivo central"_s, u"incisivo lateral"_s, u"canino"_s,
                                            u"primer premolar"_s,  u"segundo premolar"_s, u"primer molar"_s,
                                            u"segundo molar"_s,    u"tercer molar"_s};
    static const QStringList temporarias = {u"incisivo central temporario"_s,
                                            u"incisivo lateral temporario"_s, u"canino temporario"_s,
                                            u"primer molar temporario"_s, u"segundo molar temporario"_s};
    const QStringList &nombres = esTemporaria(pieza) ? temporarias : permanentes;
    return u"%1 %2 %3"_s.arg(nombres.value(posicion(pieza) - 1),
                             esSuperior(pieza) ? u"superior" : u"inferior",
                             esDerecha(pieza) ? u"derecho" : u"izquierdo");
}

/// The lips are outside both rows, the middle line between right and left.
QString nombreDeCara(int cara)
{
    const int pieza = piezaDe(cara);
    constexpr int canino = 3;
    switch (cara % carasPorPieza) {
    case Arriba:
        return esSuperior(pieza) ? u"vestibular"_s : u"lingual"_s;
    case Abajo:
        return esSuperior(pieza) ? u"palatina"_s : u"vestibular"_s;
    case Derecha:
        return esDerecha(pieza) ? u"mesial"_s : u"distal"_s;
    case Izquierda:
        return esDerecha(pieza) ? u"distal"_s : u"mesial"_s;
    default:
        return posicion(pieza) > canino ? u"oclusal"_s : u"incisal"_s;
    }
}

QRectF lugarDePieza(int pieza)
{
    return {esquina(pieza) + QPointF(0, bajoElNumero), QSizeF(anchoDePieza, altoDePieza)};
}

QRectF cuadroDeCaras(int pieza)
{
    const double desde = esSuperior(pieza) ? altoDePieza - anchoDePieza : 0;
    return {0, desde, anchoDePieza, anchoDePieza};
}

QRectF lugarDelDibujo(int pieza)
{
    return {0, esSuperior(pieza) ? 0 : altoDePieza - altoDelDibujo, anchoDePieza, altoDelDibujo};
}

QPointF lugarDelNumero(int pieza)
{
    return esquina(pieza) + delNumero;
}

QSizeF medidaDelOdontograma()
{
    constexpr int porRenglon = 16;
    return {2 * margen + paso * (porRenglon - 1) + anchoDePieza,
            lugarDePieza(piezas).bottom() + altoDeLaLeyenda};
}

} // namespace odonto
