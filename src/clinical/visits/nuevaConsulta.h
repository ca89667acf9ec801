#pragma once

#include "clinical/visits/consulta.h"

namespace consultas
{

/// Lets a person capture a visit of the patient and records it; nothing when it was cancelled. A visit that
/// cannot be stored is told and stays open: what was typed is not lost.
std::optional<Registrada> capturaYRegistra(const QString &paciente, const QString &especialidad = {});

/// Tells what of the examination was not stored, if anything.
void avisaExamenSinGuardar(const Registrada &registrada);

} // namespace consultas
