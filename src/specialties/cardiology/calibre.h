#pragma once

#include <QString>

#include <optional>

/// What the calipers on a tracing tell.
namespace calibre
{

constexpr double milimetrosDelCuadro = 5; ///< of the paper, between its thick lines
constexpr double milimetrosPorMilivolt = 10;

/// How a tracing lies in its picture.
struct Escala {
    double porMilimetro = 0;          ///< twips of the picture a millimetre of paper; 0 while it is not known
    double milimetrosPorSegundo = 25; ///< the speed of the paper
};

/// "12,0 mm = 480 ms (125 por minuto)" for twips along the paper; empty without a scale.
QString intervalo(double twips, const Escala &escala);
/// "8,0 mm = 0,80 mV", across it.
QString amplitud(double twips, const Escala &escala);
/// The number that a speed as it is written begins with ("25 mm/s"); nothing without one above zero.
std::optional<double> velocidad(const QString &escrita);

} // namespace calibre
