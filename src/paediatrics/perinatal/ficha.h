#pragma once

#include "platform/basic/value.h"

#include <QStringList>

#include <map>

/// The birth record of a patient.
namespace perinatal
{

struct SinMayusculas {
    bool operator()(const QString &a, const QString &b) const
    {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    }
};

/// What is kept by column; names go without regard to case.
using Valores = std::map<QString, basic::Value, SinMayusculas>;

/// The value of a column; Null when it is not among them.
basic::Value valor(const Valores &valores, const QString &columna);

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
