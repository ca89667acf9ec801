#pragma once

#include <QString>

#include <span>

namespace figures
{

/// What a visit names in five places, and the catalogue that the names come from.
struct Origen {
    const char *titulo;  ///< as the yearly chart lists it
    const char *columna; ///< of the visit, before its number
    const char *tabla;   ///< the catalogue's; that of the diagnoses follows the practice's setting
};
enum class Nombrado { Patologias, Sintomas, Tratamientos };
const Origen &origen(Nombrado que);
std::span<const Origen> origenes();

inline constexpr int lugaresDeLaVisita = 5;

/// The table of names; for the diagnoses the practice's own or the classification, by the setting.
QString tablaDe(Nombrado que);
/// The practice's classifier is the classification of diseases, which has its own right.
bool pideDerechoDeClasificacion(Nombrado que);

} // namespace figures
