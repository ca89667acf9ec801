#include "core/maintenance/copias.h"

#include "platform/basic/errors.h"
#include "platform/basic/files.h"
#include "platform/settings/settings.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace respaldo
{

namespace
{

const QString seccion = u"Miscelaneas"_s;
const QString claveCarpeta = u"RutaDestinoBackup"_s, claveSegunda = u"RutaDestinoBackup2"_s,
              claveConservar = u"CantidadDeBackups"_s, claveDias = u"DiasEntreBackups"_s;

int entero(const QString &clave, int porOmision)
{
    bool escrito = false;
    const int valor = settings::getSetting(seccion, clave).toInt(&escrito);
    return escrito && valor >= 0 ? valor : porOmision;
}

/// Besides the copy that was just made, which stays whatever the clock said when the others were.
void quitarLasQueSobran(const QString &nueva, int conservar)
{
    if (conservar <= 0)
        return;
    const QString carpeta = QFileInfo(nueva).path();
    QStringList otras = copiasEn(carpeta);
    otras.removeOne(QFileInfo(nueva).fileName());
    for (const QString &vieja : otras.mid(conservar - 1))
        basic::ignoring({basic::fileError}, [&] { basic::removeFile(QDir(carpeta).filePath(vieja)); });
}

/// What a station that died left half-way; another one may be at its copy now.
void quitarParcialesViejos(const QString &carpeta, const QDateTime &momento)
{
    const QString parcial = u".parcial"_s;
    for (const QFileInfo &archivo : QDir(carpeta).entryInfoList({u"*"_s + parcial}, QDir::Files))
        if (momentoDe(archivo.fileName().chopped(parcial.size())) &&
            archivo.lastModified().addDays(1) < momento)
            basic::ignoring({basic::fileError}, [&] { basic::removeFile(archivo.filePath()); });
}

/// Why there is no copy in the second folder; empty when there is.
QString copiarALaSegunda(const Destino &destino, const QString &primera, const QString &conexion,
                         const Avance &avance)
{
    try {
        const QString archivo = QDir(destino.segunda).filePath(QFileInfo(primera).fileName());
        if (!copiar(primera, archivo, conexion, avance, Origen::Quieto))
            return u"Se detuvo la copia a la segunda carpeta."_s;
        quitarLasQueSobran(archivo, destino.conservar);
        return {};
    } catch (const basic::Error &error) {
        return error.description();
    }
}

} // namespace

Destino destino()
{
    const Destino porOmision;
    return {settings::getSetting(seccion, claveCarpeta), settings::getSetting(seccion, claveSegunda),
            entero(claveConservar, porOmision.conservar), entero(claveDias, porOmision.diasDeAviso)};
}

void recordar(const Destino &destino)
{
    settings::saveSetting(seccion, claveCarpeta, destino.carpeta);
    settings::saveSetting(seccion, claveSegunda, destino.segunda);
    settings::saveSetting(seccion, claveConservar, QString::number(destino.conservar));
    settings::saveSetting(seccion, claveDias, QString::number(destino.diasDeAviso));
}

std::optional<Hecha> respaldar(const Destino &destino, const QString &base, const QString &conexion,
                               const QDateTime &momento, const Avance &avance)
{
    Hecha hecha{QDir(destino.carpeta).filePath(nombre(momento)), {}};
    for (const QString &carpeta : {destino.carpeta, destino.segunda})
        if (!carpeta.isEmpty())
            quitarParcialesViejos(carpeta, momento);
    if (!copiar(base, hecha.archivo, conexion, avance))
        return {};
    quitarLasQueSobran(hecha.archivo, destino.conservar);
    if (!destino.segunda.isEmpty())
        hecha.fallaDeLaSegunda = copiarALaSegunda(destino, hecha.archivo, conexion, avance);
    return hecha;
}

QString avisoDeLaSegunda(const Hecha &hecha)
{
    return u"La copia de seguridad se hizo en %1, pero no en la segunda carpeta.\n%2"_s.arg(
        hecha.archivo, hecha.fallaDeLaSegunda);
}

QStringList copiasEn(const QString &carpeta)
{
    QStringList nombres;
    if (!carpeta.isEmpty())
        nombres = QDir(carpeta).entryList({u"*.MDB"_s}, QDir::Files);
    nombres.removeIf([](const QString &archivo) { return !momentoDe(archivo); });
    std::ranges::sort(nombres, std::greater());
    return nombres;
}

std::optional<QDateTime> ultima(const Destino &destino)
{
    std::optional<QDateTime> momento;
    for (const QString &carpeta : {destino.carpeta, destino.segunda})
        if (const QStringList nombres = copiasEn(carpeta); !nombres.isEmpty())
            momento = std::max(momento, momentoDe(nombres.first()));
    return momento;
}

QString aviso(const Destino &destino, const QDateTime &hoy)
{
    if (destino.carpeta.isEmpty() || destino.diasDeAviso == 0)
        return {};
    if (!QFileInfo(destino.carpeta).isDir())
        return u"No se encuentra la carpeta \"%1\" de las copias de seguridad."_s.arg(destino.carpeta);
    const auto momento = ultima(destino);
    if (!momento)
        return u"Todavía no hay ninguna copia de seguridad en la carpeta \"%1\"."_s.arg(destino.carpeta);
    const qint64 dias = momento->daysTo(hoy);
    if (dias < destino.diasDeAviso)
        return {};
    return u"Hace %1 días que no se hace una copia de seguridad: la última es del %2."_s.arg(
        QString::number(dias), momento->toString(u"dd/MM/yyyy"_s));
}

} // namespace respaldo
