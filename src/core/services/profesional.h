#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace MODULE11
{

/// A field of the professional with this name. Null for nobody of the name, and for a name with an
/// apostrophe, which fails the statement.
basic::Value CampoDelProfesional(const QString &nombre, QStringView campo);

} // namespace MODULE11
