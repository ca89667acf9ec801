#pragma once

#include "platform/dao/recordset.h"

#include <QString>

#include <optional>

/// Patients by their number, the "Nº Historia Clínica".
namespace services
{

/// The number that a window's tag or a text holds, whole and not zero; nothing for any other text.
std::optional<qint64> numeroDePaciente(const QString &texto);

/// The register standing on the patient; nothing when there is none of the number. Throws dao::Error.
std::optional<dao::Recordset> paciente(qint64 numero);
std::optional<dao::Recordset> paciente(const QString &numero);

/// Empty for nobody.
QString nombreDePaciente(const QString &numero);

} // namespace services
