#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace services
{

/// The birth record keeps a chosen option as its place among the buttons; this is the word of the button.
/// Empty where nothing was chosen. A value that is no place stands for itself, as older files have it.
QString opcionPerinatal(QStringView campo, const basic::Value &guardado);

/// The words of a field's buttons, in their order; none for a field without options.
QStringList opcionesPerinatales(QStringView campo);

} // namespace services
