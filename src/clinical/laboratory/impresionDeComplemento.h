#pragma once

#include "platform/printing/printer.h"

#include <QStringList>

class QTextDocument;

namespace complementos
{

/// Prints the report under the document's name, and after it the pictures; a file that is none is left out.
void imprimir(const QTextDocument &informe, const QStringList &imagenes, const printing::Choice &impresora);

} // namespace complementos
