#pragma once

#include "measure.h"

namespace bench
{

/// Two hundred laboratory orders of all tests for a patient: opened, stepped through, compared. The orders
/// are added for the measurement and taken away again. Does nothing on a practice without patients.
void laboratory(const Report &report);

} // namespace bench
