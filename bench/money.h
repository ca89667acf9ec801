#pragma once

#include "measure.h"

namespace bench
{

/// The day book of the year whose visits are nearest to twenty thousand, ten thousand tariffs, a bill of five
/// thousand lines and what an insurer has pending. Tariffs and bill are taken away again.
void money(const Report &report);

} // namespace bench
