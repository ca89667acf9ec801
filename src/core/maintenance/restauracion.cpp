#include "core/maintenance/restauracion.h"

#include "core/maintenance/copias.h"
#include "platform/dao/database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace restauracion
{

namespace
{

/// What stands beside BASE.MDB once it has been protected, repaired, restored or brought up to date.
const QStringList alLado = {u"BACKUP.MDB"_s, u"BASE.BAK"_s, u"COMPACTA.MDB"_s, u"*.aparte"_s,
                            u"BASE.MDB.dañada*"_s};

QFileInfoList rescatables(const QString &carpeta)
{
    QFileInfoList archivos = QDir(carpeta).entryInfoList(alLado, QDir::Files, QDir::Time);
    archivos.removeIf([](const QFileInfo &archivo) { // what opening them left
        return archivo.fileName().endsWith(u".cola") || archivo.fileName().endsWith(u"-journal");
    });
    return archivos;
}

} // namespace

std::vector<Copia> copiasConocidas(const QStringList &carpetasDeRespaldo, const QString &carpetaDelPrograma)
{
    std::vector<Copia> copias;
    for (const QString &carpeta : carpetasDeRespaldo)
        for (const QString &nombre : respaldo::copiasEn(carpeta)) {
            const QString archivo = QDir(carpeta).filePath(nombre);
            copias.push_back({archivo, *respaldo::momentoDe(nombre), QFileInfo(archivo).size()});
        }
    for (const QFileInfo &archivo : rescatables(carpetaDelPrograma))
        copias.push_back({archivo.filePath(), archivo.lastModified(), archivo.size()});
    std::ranges::stable_sort(copias, std::greater(), &Copia::momento);
    return copias;
}

qint64 pacientes(const QString &archivo, const QString &conexion)
{
    const bool habia = QFile::exists(archivo + u".cola"_s);
    qint64 cuantos = 0;
    {
        dao::Database abierta;
        abierta.open(archivo, false, true, conexion);
        cuantos = abierta.openRecordset(u"Select count(*) from Pacientes"_s)[0].integer();
    }
    if (!habia)
        respaldo::quitarAlLado(archivo);
    return cuantos;
}

QString nombreAparte(const QDateTime &momento)
{
    return momento.toString(u"'BASE_'yyyy_MM_dd_HHmmss'.aparte'"_s);
}

bool restaurar(const QString &copia, const QString &carpeta, const QString &aparte, const QString &conexion,
               const respaldo::Avance &avance)
{
    const QString base = QDir(carpeta).filePath(u"BASE.MDB"_s), fresca = base + u".nueva"_s;
    const dao::Alone sola(base);
    if (!respaldo::copiar(copia, fresca, conexion, avance, respaldo::Origen::Quieto))
        return false;
    try {
        dao::replaceDatabase(base, fresca, QDir(carpeta).filePath(aparte));
    } catch (...) {
        QFile::remove(fresca);
        throw;
    }
    return true;
}

QString queHacer(const QString &carpeta)
{
    QStringList renglones;
    for (const QFileInfo &archivo : rescatables(carpeta))
        renglones +=
            u"%1 (%2)"_s.arg(archivo.fileName(), archivo.lastModified().toString(u"dd/MM/yyyy HH:mm"_s));
    return renglones.isEmpty() ? QString()
                               : u"En la carpeta %1 hay de qué volver a trabajar: "_s.arg(carpeta) +
                                     renglones.join(u", "_s) + u'.';
}

} // namespace restauracion
