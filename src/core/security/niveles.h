#pragma once

#include <QString>

namespace MODULE11
{

/// Whether the logged-in user's level grants the right of this key; tells and logs its own refusal, and logs
/// the grant. Everything is granted while there are no users.
bool VerificaNivel(const QString &clave);

} // namespace MODULE11
