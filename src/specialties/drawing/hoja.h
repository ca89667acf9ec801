#pragma once

#include "specialties/drawing/diagrama.h"

namespace dibujo
{

/// Prints a diagram under its title and the patient's name, when there is one, with what its symbols mean and
/// the texts that are not empty. Nothing when the person cancels.
void imprimir(Diagrama &diagrama, const QString &titulo, const QString &paciente,
              const QStringList &textos = {});

} // namespace dibujo
