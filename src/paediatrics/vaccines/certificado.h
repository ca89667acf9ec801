#pragma once

#include "platform/printing/printer.h"

#include <QString>

namespace forms
{
class Canvas;
}

namespace vacunas
{

/// Prints the sheet as a certificate: one lying page a copy, in vectors, under its title. Throws basic::Error
/// when the printer refuses.
void imprimirCertificado(forms::Canvas &hoja, const QString &titulo, const printing::Choice &impresora);

} // namespace vacunas
