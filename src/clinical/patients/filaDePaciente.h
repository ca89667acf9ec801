#pragma once

#include "clinical/patients/panNuePaciente.h"
#include "platform/dao/recordset.h"

/// What the patient's sheet holds, written into the rows that keep it. They throw dao::Error.
namespace clinical
{

/// The columns of `Pacientes` that the sheet shows, of a row being added or edited; not the number, nor what
/// the sheet does not show.
void escribeIdentidad(dao::Recordset &pacientes, const panNuePaciente &ficha);

/// The parents, into a row of `Pediatria` being added or edited.
void escribeFamilia(dao::Recordset &pediatria, const panComFliar &familia);

/// The family's pathologies, for those that are there.
void reemplazaPatologiasFamiliares(qint64 paciente, const QStringList &patologias);

/// Lets a person edit the patient's sheet and writes what was accepted; false when it was cancelled or could
/// not be written, which is told.
bool editaPaciente(qint64 numero);

/// The same of the family's condition alone, which is part of the sheet.
bool editaCondicionFamiliar(qint64 numero);

} // namespace clinical
