#pragma once

#include "measure.h"

namespace bench
{

/// The statistics over all visits and appointments, and a backup of the whole file, checked.
void figures(const Report &report);

} // namespace bench
