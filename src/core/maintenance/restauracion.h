#pragma once

#include "core/maintenance/respaldo.h"

#include <vector>

/// The way back to a copy of the practice's file.
namespace restauracion
{

/// A file that the practice's may be taken from.
struct Copia {
    QString archivo;
    QDateTime momento; ///< in its name; else when it was written
    qint64 bytes = 0;
};

/// The copies in the backup folders, and beside the practice's file what protecting, repairing and restoring
/// have left; the newest first.
std::vector<Copia> copiasConocidas(const QStringList &carpetasDeRespaldo, const QString &carpetaDelPrograma);

/// The patients in a copy. Throws basic::Error when it cannot be opened with the key.
qint64 pacientes(const QString &archivo, const QString &conexion);

/// "BASE_2024_03_15_103000.aparte": the name under which the file that is replaced stays.
QString nombreAparte(const QDateTime &momento);

/// Puts a checked copy of the file `copia` in the place of BASE.MDB of the folder, which is closed and stays
/// under the name `aparte` beside it. False when it was stopped; then, and when it throws basic::Error,
/// BASE.MDB is as it was. Error::Locked when another station has it open.
bool restaurar(const QString &copia, const QString &carpeta, const QString &aparte, const QString &conexion,
               const respaldo::Avance &avance);

/// What there is to go back to when BASE.MDB of the folder is missing or cannot be used, in words for a
/// person; empty when nothing is.
QString queHacer(const QString &carpeta);

} // namespace restauracion
