#pragma once

#include <QStringList>

/// What changed between two heart records.
namespace corazon
{

/// What the record says otherwise than the patient's one before it ("Electro - RITMO: Sinusal →
/// Fibrilación"), in the order of its columns. Nothing without one before. Throws dao::Error.
QStringList cambios(qint64 paciente, qint64 consulta);

} // namespace corazon
