#include "core/maintenance/proteccion.h"

#include "core/maintenance/compacta.h"
#include "core/maintenance/pasos.h"
#include "core/maintenance/respaldo.h"
#include "core/session/startup.h"
#include "platform/basic/files.h"
#include "platform/cipher/cipher.h"
#include "platform/dao/database.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace proteccion
{

namespace
{

const QString llave = u"7C2E41B09DA6F3185EC0B72D49A"_s;

/// What opens the file as it is: the program's own word or, once it was protected with another, that one.
QString conexionDe(const QString &base, const QString &otra)
{
    dao::Database abierta;
    const bool propia = basic::ignoring(
        {dao::Error::WrongPassword}, [&] { abierta.open(base, false, true, MODULE11::conexionDeLaBase()); });
    return propia ? MODULE11::conexionDeLaBase() : otra;
}

} // namespace

QString EncriptaClave(const QString &clave)
{
    return cipher::encryptString(llave, clave);
}

std::optional<QString> DesencriptaClave(const QString &texto)
{
    return cipher::decryptString(llave, texto);
}

QString proteger(const QString &carpeta, const QString &anterior, const QString &nueva,
                 const mantenimiento::Avance &avance)
{
    const QDir ahi(carpeta);
    const QString base = ahi.filePath(u"BASE.MDB"_s), compacta = ahi.filePath(u"COMPACTA.MDB"_s),
                  backup = ahi.filePath(u"BACKUP.MDB"_s), fresca = base + u".nueva"_s;
    const QString viejaConexion = u";pwd="_s + anterior, nuevaConexion = u";pwd="_s + nueva;
    const QString sinNueva =
        u"Error al intentar crear la nueva base de datos protegida, no se podrá establecer la contraseña !"_s;
    std::optional<dao::Alone> sola; // from the new copy on, until it has taken its place
    const auto fallo = mantenimiento::hacer({
        {u"Error al intentar borrar la base temporaria, no se podrá establecer la contraseña !"_s,
         [&] { basic::removeFile(compacta); }},
        {u"Error al intentar eliminar la anterior base de datos de Backup, no se podrá establecer la contraseña !"_s,
         [&] { basic::removeFile(backup); }},
        {u"Error al intentar crear la base de datos de Backup, no se podrá establecer la contraseña !"_s,
         [&] { respaldo::copiar(base, backup, conexionDe(base, viejaConexion), avance); }},
        {sinNueva,
         [&] {
             sola.emplace(base);
             compacta::compactar(base, compacta, u";LANGID=0x0409;CP=1252;COUNTRY=0;pwd="_s + nueva,
                                 viejaConexion, avance);
         }},
        {sinNueva, // beside the old one, so that there is always one of the two under its name
         [&] { respaldo::copiar(compacta, fresca, nuevaConexion, avance, respaldo::Origen::Quieto); }},
        {u"Error al intentar eliminar la anterior base de datos, no se podrá establecer la contraseña !"_s,
         [&] { compacta::reemplazar(base, fresca); }},
    });
    return fallo ? fallo->texto : QString();
}

} // namespace proteccion
