#pragma once

#include "measure.h"

namespace bench
{

/// The healthy-child control of a patient who was measured and vaccinated. What opening it writes is taken
/// away again. Does nothing on a practice without vaccinated patients.
void controls(const Report &report);

} // namespace bench
