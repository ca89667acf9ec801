#pragma once

#include "specialties/odontology/anatomia.h"
#include "specialties/odontology/esquema.h"

namespace odonto
{

constexpr double twipsPorBorde = 15; ///< a border of width 1

/// Over the whole tooth: it is missing.
QPainterPath cruz();
/// How a mark is drawn on a tooth, from the corner of its outline. Empty for no mark and for a missing tooth,
/// which has a cross.
QPainterPath trazoDe(int tipo, int pieza);

} // namespace odonto
