#include "core/maintenance/respaldo.h"

#include "platform/basic/errors.h"
#include "platform/basic/files.h"
#include "platform/dao/database.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace respaldo
{

namespace
{

constexpr qint64 trozo = 4 * 1024 * 1024;
const QString formato = u"yyyy_MM_dd_HHmmss"_s, extension = u".MDB"_s;

[[noreturn]] void falla(const QString &motivo)
{
    throw basic::Error(basic::fileError, motivo);
}

/// False when it was stopped.
bool copiarBytes(QFile &desde, QFile &hacia, const Avance &avance)
{
    const QString etapa = u"Se copia:"_s;
    const qint64 total = desde.size();
    while (desde.pos() < total) {
        const QByteArray bytes = desde.read(trozo);
        if (bytes.isEmpty())
            falla(u"No se pudo leer %1: %2"_s.arg(desde.fileName(), desde.errorString()));
        if (hacia.write(bytes) != bytes.size() || !hacia.flush())
            falla(u"No se pudo escribir %1: %2"_s.arg(hacia.fileName(), hacia.errorString()));
        if (!avance(etapa, desde.pos(), total))
            return false;
    }
    return true;
}

bool copiarEnUso(QFile &desde, QFile &hacia, const QString &conexion, const Avance &avance)
{
    dao::Database quieta; // while it is being read, nobody else's writing reaches the file
    quieta.open(desde.fileName(), false, true, conexion);
    bool entera = false;
    quieta.readTogether([&] {
        quieta.openRecordset(u"Select count(*) from Pacientes"_s);
        entera = copiarBytes(desde, hacia, avance);
    });
    return entera;
}

/// The file that is to become the copy; gone again unless it got its name.
class Parcial
{
public:
    explicit Parcial(const QString &destino) : ruta_(destino + u".parcial"_s) {}
    ~Parcial()
    {
        QFile::remove(ruta_);
        quitarAlLado(ruta_);
    }
    Parcial(const Parcial &) = delete;
    Parcial &operator=(const Parcial &) = delete;
    const QString &ruta() const { return ruta_; }

private:
    QString ruta_;
};

bool llenar(const QString &origen, const QString &parcial, const QString &conexion, const Avance &avance,
            Origen de)
{
    QFile desde(origen), hacia(parcial);
    if (!desde.open(QIODevice::ReadOnly))
        falla(u"No se pudo leer %1: %2"_s.arg(origen, desde.errorString()));
    if (!hacia.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        falla(u"No se pudo escribir %1: %2"_s.arg(parcial, hacia.errorString()));
    hacia.setPermissions(desde.permissions());
    return de == Origen::EnUso ? copiarEnUso(desde, hacia, conexion, avance)
                               : copiarBytes(desde, hacia, avance);
}

} // namespace

QString nombre(const QDateTime &momento)
{
    return momento.toString(formato) + extension;
}

std::optional<QDateTime> momentoDe(const QString &archivo)
{
    const QDateTime momento = QDateTime::fromString(archivo, formato + u"'.MDB'"_s);
    return momento.isValid() && nombre(momento) == archivo ? std::optional(momento) : std::nullopt;
}

bool copiar(const QString &origen, const QString &destino, const QString &conexion, const Avance &avance,
            Origen de, Copia copia)
{
    const Parcial parcial(destino);
    if (!llenar(origen, parcial.ruta(), conexion, avance, de))
        return false;
    basic::syncFile(parcial.ruta()); // what is checked is what the disk has
    if (copia == Copia::Revisada)
        revisar(parcial.ruta(), conexion, avance);
    basic::replaceFile(parcial.ruta(), destino);
    return true;
}

void revisar(const QString &archivo, const QString &conexion, const Avance &avance)
{
    avance(u"Se revisa la copia"_s, 0, 0);
    dao::Database abierta;
    abierta.open(archivo, false, true, conexion);
    if (const QStringList fallas = abierta.check(dao::Database::Check::Pages); !fallas.isEmpty())
        falla(u"La copia no está sana: %1"_s.arg(fallas.first()));
    abierta.openRecordset(
        u"Select count(*) from Pacientes"_s); // sound pages of another kind of base are no copy
}

void quitarAlLado(const QString &archivo)
{
    for (const QString &resto : {archivo + u".cola"_s, archivo + u"-journal"_s})
        QFile::remove(resto);
}

} // namespace respaldo
