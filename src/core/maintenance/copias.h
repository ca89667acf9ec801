#pragma once

#include "core/maintenance/respaldo.h"

#include <vector>

namespace respaldo
{

/// Where this workstation keeps its copies, and how many: from the settings.
struct Destino {
    QString carpeta;
    QString segunda;     ///< a second folder, on another disk; empty for none
    int conservar = 0;   ///< of the newest in each folder; 0 keeps all
    int diasDeAviso = 7; ///< without a copy, after which a notice reminds; 0 never
};
Destino destino();
void recordar(const Destino &destino);

/// What became of a copy that was made.
struct Hecha {
    QString archivo;
    QString
        fallaDeLaSegunda; ///< why the second folder has none; empty when it has, or there is no such folder
};
/// The same in words for a person.
QString avisoDeLaSegunda(const Hecha &hecha);

/// Copies the practice's file, which stays in use, to both folders and checks each copy; only then those that
/// are too many go. Nothing when it was stopped. Throws basic::Error when the first copy cannot be made.
std::optional<Hecha> respaldar(const Destino &destino, const QString &base, const QString &conexion,
                               const QDateTime &momento, const Avance &avance);

/// The names of the copies in a folder, the newest first: none but files that bear a copy's name.
QStringList copiasEn(const QString &carpeta);

/// The moment of the last copy in the folders; nothing without one.
std::optional<QDateTime> ultima(const Destino &destino);

/// What reminds of the copy that is missing; empty while none is due, or no folder was ever chosen.
QString aviso(const Destino &destino, const QDateTime &hoy);

} // namespace respaldo
