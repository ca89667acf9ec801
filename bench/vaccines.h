#pragma once

#include "measure.h"

namespace bench
{

/// The sheet of a full plan of 144 doses, opened, drawn anew and marked whole; then every child of the
/// practice that is late for a dose of the practice's own plan. The full plan and the doses are added for the
/// measurement and taken away again. Does nothing on a practice without patients.
void vaccines(const Report &report);

} // namespace bench
