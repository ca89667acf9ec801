#pragma once

#include "platform/basic/value.h"

namespace paediatrics
{

/// Body-mass index, kg/m², of a weight in grams and a height in centimetres; 0 when either is 0 or Null.
double CalcularIMC(const basic::Value &peso, const basic::Value &talla);

/// Takes a patient's measures with `panMedidas` and stores the row that was accepted; true when there is one.
/// Throws dao::Error.
bool TomarMedidas(qint64 paciente);

} // namespace paediatrics
