#pragma once

#include <QString>

#include <optional>

namespace paediatrics
{

/// Where a measure stands among children of its age and sex by the World Health Organization's figures:
/// weight to ten years, height and body-mass index to nineteen. The head's go to five years, and to eighteen
/// by those of Flanders, which join them best.
enum class Medida { Peso, Talla, PerimetroCefalico, Imc };

/// The z-score of a value in the table's unit (grams, centimetres, kg/m²) at an age in days; nothing where no
/// figures are published, or for a value that was not taken (0).
std::optional<double> puntajeZ(Medida medida, QStringView sexo, double dias, double valor);

/// "P63, z +0,3"; percentiles under 1 and over 99 with one decimal, "P<0,1" and "P>99,9" at the ends.
QString percentilYPuntaje(double z);

/// "P63, z +0,3, adecuado para la edad"; empty where there is no score.
QString enPalabras(Medida medida, QStringView sexo, double dias, double valor);

/// The same of the weight (grams) for the length or height (centimetres): lying until the 730th day, standing
/// after, to five years. "P63, z +0,3, adecuado para la talla".
QString pesoParaTallaEnPalabras(QStringView sexo, double dias, double talla, double peso);

} // namespace paediatrics
