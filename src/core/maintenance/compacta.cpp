#include "core/maintenance/compacta.h"

#include "core/maintenance/pasos.h"
#include "core/maintenance/respaldo.h"
#include "platform/basic/errors.h"
#include "platform/basic/files.h"
#include "platform/dao/database.h"

#include <QDir>
#include <QFile>

#include <optional>

using namespace Qt::StringLiterals;

namespace compacta
{

namespace
{

dao::FileProgress etapa(const mantenimiento::Avance &avance, const QString &nombre)
{
    return [&avance, nombre](qint64 hechos, qint64 total) { return avance(nombre, hechos, total); };
}

constexpr std::initializer_list<int> danos = {dao::Error::FileDamaged, dao::Error::WrongPassword,
                                              dao::Error::NotADatabase, dao::Error::Engine};

/// What a station that died left half written is taken back, and stays no part of a copy.
void asentar(const QString &base, const QString &conexion)
{
    dao::Database abierta;
    basic::ignoring(danos, [&] { abierta.open(base, false, false, conexion); });
}

bool sana(const QString &base, const QString &conexion)
{
    dao::Database abierta;
    return basic::ignoring(danos, [&] { abierta.open(base, false, true, conexion); }) &&
           abierta.check(dao::Database::Check::Pages).isEmpty();
}

} // namespace

bool compactar(const QString &base, const QString &copia, const QString &destino, const QString &conexion,
               const mantenimiento::Avance &avance)
{
    if (!dao::compactDatabase(base, copia, destino, conexion, etapa(avance, u"Se compacta:"_s)))
        return false;
    try {
        respaldo::revisar(copia, destino, avance);
    } catch (const basic::Error &) {
        basic::removeFile(copia);
        respaldo::quitarAlLado(copia);
        throw;
    }
    respaldo::quitarAlLado(copia);
    return true;
}

void reemplazar(const QString &base, const QString &fresca)
{
    basic::removeFile(base + u"-journal"_s); // never to be played back into the new file
    try {
        basic::replaceFile(fresca, base);
    } catch (const basic::Error &) {
        QFile::remove(fresca);
        throw;
    }
}

QString actualizar(const QString &carpeta, const QString &conexion, const mantenimiento::Avance &avance)
{
    const QDir ahi(carpeta);
    const QString base = ahi.filePath(u"BASE.MDB"_s), copia = ahi.filePath(u"COMPACTA.MDB"_s),
                  anterior = ahi.filePath(u"BASE.BAK"_s), fresca = base + u".nueva"_s;
    const QString sinAnterior =
        u"No se puede copiar el achivo BASE.MDB a BASE.BAK, puede estar siendo utilizado por otra terminal u otro proceso. Error detectado : "_s;
    std::optional<dao::Alone> sola;
    const auto fallo = mantenimiento::hacer({
        {u"Error al intentar borrar el archivo 'COMPACTA.MDB' , Error detectado : "_s,
         [&] { basic::removeFile(copia); }},
        {sinAnterior, [&] { basic::removeFile(anterior); }},
        {sinAnterior, // sound or not: it is what there was
         [&] {
             sola.emplace(base);
             asentar(base, conexion);
             respaldo::copiar(base, anterior, conexion, avance, respaldo::Origen::Quieto,
                              respaldo::Copia::TalCual);
         }},
        {u"Error al intentar reparar el archivo BASE.MDB, Error detectado : "_s,
         [&] {
             if (!sana(base, conexion))
                 dao::repairDatabase(base, conexion, etapa(avance, u"Se repara:"_s));
         }},
        {u"Imposible compactar la base de datos. Error detectado : "_s,
         [&] { compactar(base, copia, conexion, conexion, avance); }},
        {u"Error al intentar copiar COMPACTA.MDB a BASE.MDB, Error detectado : "_s,
         [&] { respaldo::copiar(copia, fresca, conexion, avance, respaldo::Origen::Quieto); }},
        {u"No se puede borrar el achivo BASE.MDB para actualizarlo, puede estar siendo utilizado por otra terminal u otro proceso. Error detectado : "_s,
         [&] { reemplazar(base, fresca); }},
    });
    return fallo ? fallo->texto + fallo->motivo : QString();
}

} // namespace compacta
