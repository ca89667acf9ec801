#pragma once

#include "paediatrics/vaccines/atrasos.h"

#include <functional>

namespace vacunas
{

/// Writes what the letters about late doses tell, a letter for each child and a line for each dose, and calls
/// `muestra` with the formula that selects them for the report; they are in the base only meanwhile. Other
/// stations' letters are not touched. `avance` is told of the lines written; false stops it, and nothing is
/// shown. Throws dao::Error.
void conCartas(const Atrasos &atrasos, const Atrasos::Avance &avance,
               const std::function<void(const QString &seleccion)> &muestra);

} // namespace vacunas
