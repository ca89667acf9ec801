#pragma once

#include "measure.h"

namespace bench
{

/// The visits of the patient with most of them, and the tree of diseases: recorded, opened, stepped through,
/// searched. The visits recorded are taken away again; their audit events stay. Says so and does nothing on a
/// practice without a patient of a hundred visits.
void visits(const Report &report);

} // namespace bench
