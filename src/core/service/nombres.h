#pragma once

#include <QString>

namespace service
{

inline constexpr int largoDeNombre = 64;

/// Why a text cannot be the name of a table or of a column; empty when it can.
QString reparoDelNombre(const QString &nombre);

} // namespace service
