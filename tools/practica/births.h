#pragma once

#include "growth.h"
#include "patients.h"

/// What the practice knows of births, and its blood pressures and sight tests.
namespace practica
{

/// The birth records of nine in ten patients, of the first 5,000 at most.
void addBirths(const std::vector<Patient> &patients, const Growth &growth, Dice &dice);

/// The pressures that the examinations tell.
void addPressures();
/// A sight test a year of some children, from five years on.
void addSightTests(const std::vector<Patient> &patients, Dice &dice);

} // namespace practica
