#pragma once

#include <QtGlobal>

namespace paediatrics
{

/// How many days before the forty weeks a patient was born who was born before the thirty-seventh, by the
/// birth record: the examination's gestational age, or else the mother's. 0 for all others.
int diasDePrematuro(qint64 paciente);

/// The age at which a preterm child's measure is read: less those days, until two years of life.
double edadCorregida(double diasDeVida, int diasDePrematuro);

} // namespace paediatrics
