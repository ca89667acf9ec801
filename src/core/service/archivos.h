#pragma once

#include <QStringList>

/// The tables that the maintainer may open row by row.
namespace archivos
{

/// Those of the practice, without the engine's own and without those that say who may do what and who did it.
/// Throws dao::Error.
QStringList tablas();

/// Whether a SELECT reads from nothing else, at any depth. Throws dao::Error for a text that is none.
bool alcanza(const QString &sql);

} // namespace archivos
