#pragma once

#include "platform/dao/embedded/watch.h"

namespace dao
{

/// Writes what can be read of a damaged file into a new one under the same password. False when it was
/// stopped. Throws Error when nothing can be read.
bool rescueRows(const QString &from, const QString &to, const QString &password, Watch &watch);

} // namespace dao
