#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace MODULE11
{

/// A field of the professional with this name; Null for nobody of the name. Throws dao::Error.
basic::Value CampoDelProfesional(const QString &nombre, QStringView campo);

} // namespace MODULE11
