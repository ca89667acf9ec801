#pragma once

#include "core/records/campos.h"

#include <QStringList>

/// The birth record of a patient.
namespace perinatal
{

using records::valor;
using records::Valores;

struct Ficha {
    Valores perinatal; ///< the main form's
    Valores pediatria; ///< what the companion dialogues keep
    QStringList patologias, diagnosticos;

    bool operator==(const Ficha &) const = default;
};

/// All that is kept; of a patient without a record, nothing. Throws dao::Error.
Ficha leer(qint64 paciente);

/// Writes the columns that the record names and no others, the two lists whole, and weight and height among
/// the patient's measures at the date of birth, in the place of what was there. A row that is missing is
/// made. What was written before a failure stays. Throws dao::Error.
void guardar(qint64 paciente, const Ficha &ficha);

} // namespace perinatal
