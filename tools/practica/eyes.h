#pragma once

#include "patients.h"

namespace practica
{

/// Eye visits of one in five of the first patients, from five years on: a refraction that grows, its glasses,
/// acuity and pressure. Written as the program does, with its clock at the hour of the visit.
void addEyeVisits(const std::vector<Patient> &patients, const QDate &today, Dice &dice);

} // namespace practica
