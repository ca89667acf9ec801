#pragma once

#include "measure.h"

namespace bench
{

/// The tooth chart of a patient with ten schemes opened, changed for another and saved, the price list
/// narrowed as one types, and a long list of budgets. What is written for the measurement is taken away
/// again. Does nothing on a practice without patients.
void teeth(const Report &report);

} // namespace bench
