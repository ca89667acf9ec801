#pragma once

#include "core/maintenance/trabajo.h"

#include <QString>

/// The copy without free space that takes the place of the practice's file.
namespace compacta
{

/// Makes the copy of a closed file and checks it with its key. `destino` is a connect string that may name
/// another password, `conexion` the one of the source. False when it was stopped. Throws basic::Error; then
/// there is no copy.
bool compactar(const QString &base, const QString &copia, const QString &destino, const QString &conexion,
               const mantenimiento::Avance &avance);

/// Puts a checked file in the place of the closed one, in one stroke: what stood there is gone. Throws
/// basic::Error; then there is no fresh one.
void reemplazar(const QString &base, const QString &fresca);

/// Deletes COMPACTA.MDB and BASE.BAK of the folder, keeps BASE.MDB as BASE.BAK, compacts it into COMPACTA.MDB
/// and puts a copy of that in its place, BASE.MDB being closed. The text of the stage that failed, with the
/// error behind it; empty when it was done.
QString actualizar(const QString &carpeta, const QString &conexion, const mantenimiento::Avance &avance);

} // namespace compacta
