#include "core/maintenance/respaldo.h"

#include "platform/basic/errors.h"
#include "platform/dao/database.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace respaldo
{

namespace
{

constexpr qint64 trozo = 4 * 1024 * 1024;
constexpr int errorDeArchivo = 75;

[[noreturn]] void falla(const QString &motivo)
{
    throw basic::Error(errorDeArchivo, motivo);
}

/// False when it was stopped.
bool copiarBytes(QFile &desde, QFile &hacia, const Avance &avance)
{
    const qint64 total = desde.size();
    while (desde.pos() < total) {
        const QByteArray bytes = desde.read(trozo);
        if (bytes.isEmpty())
            falla(u"No se pudo leer %1: %2"_s.arg(desde.fileName(), desde.errorString()));
        if (hacia.write(bytes) != bytes.size())
            falla(u"No se pudo escribir %1: %2"_s.arg(hacia.fileName(), hacia.errorString()));
        if (!avance(desde.pos(), total))
            return false;
    }
    if (!hacia.flush())
        falla(u"No se pudo escribir %1: %2"_s.arg(hacia.fileName(), hacia.errorString()));
    return true;
}

void verificar(const QString &archivo, const QString &conexion)
{
    dao::Database copia;
    copia.open(archivo, false, true, conexion);
    if (const QStringList fallas = copia.check(); !fallas.isEmpty())
        falla(u"La copia no está sana: %1"_s.arg(fallas.first()));
}

/// The copy that is no backup, and what opening it left beside it.
void quitar(const QString &parcial)
{
    for (const QString &archivo : {parcial, parcial + u".cola"_s, parcial + u"-journal"_s})
        QFile::remove(archivo);
}

} // namespace

QString nombre(const QDateTime &momento)
{
    return momento.toString(u"yyyy_MM_dd_HHmmss") + u".MDB"_s;
}

bool copiar(const QString &origen, const QString &destino, const QString &conexion, const Avance &avance)
{
    const QString parcial = destino + u".parcial"_s;
    QFile desde(origen), hacia(parcial);
    if (!desde.open(QIODevice::ReadOnly))
        falla(u"No se pudo leer %1: %2"_s.arg(origen, desde.errorString()));
    if (!hacia.open(QIODevice::WriteOnly | QIODevice::Truncate))
        falla(u"No se pudo escribir %1: %2"_s.arg(parcial, hacia.errorString()));
    bool entera = false;
    try {
        dao::Database quieta; // while it is being read, nobody else's writing reaches the file
        quieta.open(origen, false, true, conexion);
        quieta.readTogether([&] {
            quieta.openRecordset(u"Select count(*) from Pacientes"_s);
            entera = copiarBytes(desde, hacia, avance);
        });
        hacia.close();
        if (entera)
            verificar(parcial, conexion);
    } catch (...) {
        hacia.close();
        quitar(parcial);
        throw;
    }
    if (entera)
        QFile::remove(destino);
    const bool nombrada = entera && QFile::rename(parcial, destino);
    quitar(parcial);
    if (entera && !nombrada)
        falla(u"No se pudo escribir %1."_s.arg(destino));
    return entera;
}

} // namespace respaldo
