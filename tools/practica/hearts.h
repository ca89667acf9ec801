#pragma once

#include "patients.h"

/// A child that the practice follows for its heart.
namespace practica
{

/// The antecedents and a heart record for each of the last three visits of the patient with the most visits:
/// a ventricular septal defect that closes by itself, and the examination for sports at the last. Nothing
/// without visits.
void addHeartPatient(const std::vector<Patient> &patients);

} // namespace practica
