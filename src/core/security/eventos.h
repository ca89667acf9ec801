#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace MODULE11
{

/// Appends one row to the audit table; a log that cannot be written never stops the caller.
void RegistraEvento(const QString &proceso, const QString &usuario, basic::Date fecha, basic::Date hora,
                    const QString &suceso);
/// The same for the logged-in user, now.
void RegistraEvento(const QString &proceso, const QString &suceso);

} // namespace MODULE11
