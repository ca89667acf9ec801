#pragma once

#include "patients.h"

/// The doses noted of the synthetic patients.
namespace practica
{

/// Six of ten have every dose of their age, three stopped somewhere, with a dose indicated since, and one has
/// none: by their numbers, so that the same patients always show the same. Only the first `vaccinated` of
/// them have any.
void addVaccines(const std::vector<Patient> &patients, int vaccinated, QDate today, Dice &dice);

} // namespace practica
