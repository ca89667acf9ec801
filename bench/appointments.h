#pragma once

#include "measure.h"

namespace bench
{

/// The commands of the appointment book on the open practice, each until its picture is painted. Places are
/// given and freed again; a year of one professional's is made for a new one and removed.
void appointments(const Report &report);

} // namespace bench
