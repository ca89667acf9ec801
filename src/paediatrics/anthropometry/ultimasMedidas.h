#pragma once

#include "core/session/ports.h"

namespace paediatrics
{

/// The last weight, height, head circumference and body-mass index that were taken of a patient, in that
/// order, each with its place among children of the age it was taken at.
std::array<ports::MedidaEnPalabras, 4> ultimasMedidas(qint64 paciente, const QString &sexo,
                                                      const basic::Date &nacimiento);

} // namespace paediatrics
