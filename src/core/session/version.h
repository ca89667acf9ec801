#pragma once

#include <QString>

/// The program's version: major, minor and revision.
namespace core::version
{

inline constexpr int major = 1;
inline constexpr int minor = 0;
inline constexpr int revision = 0;

inline QString conEspacios()
{
    return QStringLiteral("%1 %2 %3").arg(major).arg(minor).arg(revision);
}

} // namespace core::version
