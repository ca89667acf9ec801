#pragma once

#include "measure.h"

namespace bench
{

/// The records of the specialties and the risk calculators.
void specialties(const Report &report);

} // namespace bench
