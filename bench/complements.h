#pragma once

#include "measure.h"

namespace bench
{

/// The report of an examination, of a megabyte with ten pictures: opened to its first paint, and saved. What
/// it writes is taken away again. Does nothing on a practice without patients.
void complements(const Report &report);

} // namespace bench
