#pragma once

#include "core/maintenance/trabajo.h"

#include <QString>

#include <optional>

/// The password of the practice's file.
namespace proteccion
{

/// The enciphered form in which the settings keep the password, and back; nothing when it was damaged.
QString EncriptaClave(const QString &clave);
std::optional<QString> DesencriptaClave(const QString &texto);

/// Puts the file BASE.MDB of the folder, closed, under a new password. What stood there is in BACKUP.MDB and
/// the new file in COMPACTA.MDB as well; until the last step BASE.MDB is as it was. The text of the step that
/// failed, after which the following are not done; empty when it was done.
QString proteger(const QString &carpeta, const QString &anterior, const QString &nueva,
                 const mantenimiento::Avance &avance);

} // namespace proteccion
