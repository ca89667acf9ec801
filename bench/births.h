#pragma once

#include "measure.h"

namespace bench
{

/// The birth record of a patient opened and stored, and a thousand pressures of the patient opened. What is
/// written for the measurement is taken away again. Does nothing on a practice without patients.
void births(const Report &report);

} // namespace bench
