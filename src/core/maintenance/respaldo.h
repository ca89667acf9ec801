#pragma once

#include "core/maintenance/trabajo.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

/// Copies of the practice's file. A copy bears its name only once it is whole and has been checked: what was
/// left half-way lies beside it as ".parcial" at most, and goes with a later copy.
namespace respaldo
{

using mantenimiento::Avance;

/// "2024_03_15_103000.MDB".
QString nombre(const QDateTime &momento);
/// The moment in a name of that form; nothing for any other file.
std::optional<QDateTime> momentoDe(const QString &nombre);

/// Whether others may write in the file that is copied: then their writing waits while it is read.
enum class Origen { EnUso, Quieto };
/// Whether the copy is opened and checked, or holds what there was, sound or not.
enum class Copia { Revisada, TalCual };

/// Copies the file and gives the copy its name, over one of the same name. Throws basic::Error with what
/// keeps it from being made; false when it was stopped.
bool copiar(const QString &origen, const QString &destino, const QString &conexion, const Avance &avance,
            Origen de = Origen::EnUso, Copia copia = Copia::Revisada);

/// Opens a file with its key and checks its pages; throws basic::Error with what is wrong.
void revisar(const QString &archivo, const QString &conexion, const Avance &avance);

/// What opening a file leaves beside it goes, where nobody works with the file.
void quitarAlLado(const QString &archivo);

} // namespace respaldo
