#pragma once

#include "measure.h"

namespace bench
{

/// The patient's page of the one with the most visits and five hundred events in the last year, its history
/// as text, and the family tree.
void summary(const Report &report);

} // namespace bench
