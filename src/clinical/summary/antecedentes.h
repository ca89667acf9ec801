#pragma once

#include <QStringList>

/// The lists of the patient's page. They throw dao::Error.
namespace clinical
{

/// The family's pathologies, and what each relative had.
QStringList antecedentesFamiliares(qint64 paciente);

/// Pathologies and diagnoses of the newborn, a line of dashes, and what the birth record says. Nothing where
/// none of it says anything.
QStringList renglonesPerinatales(qint64 paciente);

} // namespace clinical
