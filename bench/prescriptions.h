#pragma once

#include "measure.h"

namespace bench
{

/// The prescription sheet, and the file of a professional with 100,000 prescriptions, which are taken away
/// again.
void prescriptions(const Report &report);

} // namespace bench
