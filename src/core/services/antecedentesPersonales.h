#pragma once

#include <QStringList>

namespace services
{

/// The lines of a patient's personal history. They throw dao::Error.
QStringList antecedentesPersonales(qint64 paciente);
/// Writes the whole list; the allergy record, which stands in the same table, stays.
void guardaAntecedentesPersonales(qint64 paciente, const QStringList &antecedentes);

} // namespace services
