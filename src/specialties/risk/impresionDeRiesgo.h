#pragma once

#include "platform/forms/form.h"

namespace riesgo
{

/// Prints a calculator with what was answered, on a sheet with the patient's name when the window has a
/// patient. Nothing when the person cancels.
void imprimir(const forms::Form &ventana, const QStringList &respuestas, const QString &total,
              const QString &consejo = {});

} // namespace riesgo
