#pragma once

#include "platform/printing/printer.h"

class QTextDocument;

namespace richtext
{

/// Prints the document on A4 sheets; pictures broader than the sheet are made to fit. Throws basic::Error
/// when the printer or the file refuses.
void print(const QTextDocument &document, const printing::Choice &choice, const QString &name);

} // namespace richtext
