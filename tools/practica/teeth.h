#pragma once

#include "patients.h"

/// The dentist of the synthetic practice.
namespace practica
{

/// A price list, and for the child nearest to five years and for the eldest patient a tooth chart before and
/// after the treatment, with its budget: temporary teeth and permanent ones. Nothing without patients.
void addDentalRecords(const std::vector<Patient> &patients, QDate today);

} // namespace practica
