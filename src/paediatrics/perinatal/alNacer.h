#pragma once

#include <QString>

#include <optional>

namespace perinatal
{

/// A newborn's measures among those of its sex and gestational age, by the figures of INTERGROWTH-21st:
/// single births, 24 weeks to 42 weeks and 6 days. Nothing is said outside of them.
enum class MedidaAlNacer { Peso, Longitud, PerimetroCefalico };

/// Whose figures they are.
extern const QString fuenteAlNacer;

/// The z-score of a value (grams, centimetres) of a "Varon" or a "Mujer"; nothing without figures or value.
std::optional<double> puntajeZ(MedidaAlNacer medida, QStringView sexo, int diasDeGestacion, double valor);

/// "P63, z +0,3, adecuado para 39 semanas y 4 días"; under P10 and over P90 it is told so. Empty where there
/// is no score.
QString enPalabras(MedidaAlNacer medida, QStringView sexo, int diasDeGestacion, double valor);

/// Days of gestation as a person writes them: "39", "39+4", "39 semanas", "39,5"; nothing for any other text.
std::optional<int> diasDeGestacion(const QString &escrito);

} // namespace perinatal
