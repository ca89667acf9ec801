#pragma once

#include "core/session/ports.h"

namespace consultas
{

/// Records a healthy-child control as a visit of its own type, in the hour that it is. Throws dao::Error when
/// the visit cannot be written.
void registrarControlDeSalud(const ports::ControlDeSalud &control);

} // namespace consultas
