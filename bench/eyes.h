#pragma once

#include "measure.h"

namespace bench
{

/// The form of an eye visit opened, and the viewer of a patient with sixty drawn visits. What is written for
/// the measurement is taken away again. Does nothing on a practice without patients.
void eyes(const Report &report);

} // namespace bench
