#pragma once

#include "measure.h"

namespace bench
{

/// Any table row by row, the service window, and the emptying of a copy of the practice's file.
void console(const Report &report);

} // namespace bench
