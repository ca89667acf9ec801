#pragma once

#include "patients.h"

/// The adolescent that the practice accompanies through a pregnancy.
namespace practica
{

/// The gynaecological record, a drawn colposcopy and a pregnancy of 28 weeks with its controls, of the eldest
/// girl that is of age for it. Nothing without one.
void addPregnancy(const std::vector<Patient> &patients, QDate today);

} // namespace practica
