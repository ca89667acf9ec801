#pragma once

#include "measure.h"

namespace bench
{

/// Work on the practice's file as a whole, on copies of it in a folder beside: a backup, a new password, the
/// file without its free space, the way back to a copy.
void care(const Report &report);

} // namespace bench
