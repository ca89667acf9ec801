#pragma once

#include "platform/basic/value.h"

#include <QDateTime>
#include <QString>

/// What the program asks of its surroundings, so that a test can set it: the clock and the program's folder.
namespace basic
{

QDateTime now();
Date today();
Date time(); ///< the time of day alone
/// From here on the program's clock shows `moment` and goes on from there; an invalid moment restores the
/// machine's.
void setClock(const QDateTime &moment);

/// The folder with the database, the chart pictures and the help: the one that the environment variable
/// SANIRELL_CARPETA names, else the executable's.
QString programFolder();
/// A file below the program's folder, given with forward slashes or backslashes.
QString programFile(const QString &relative);

} // namespace basic
