#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace catalogos
{

/// The dose of a treatment for the patient of this number by the weight last taken, in words. Without a
/// patient, a dose per kilogram or a measurement it says that there are no data; so it does for an interval
/// that does not divide.
QString dosisParaElPaciente(const QString &paciente, const basic::Value &dosis,
                            const basic::Value &intervalo);

} // namespace catalogos
