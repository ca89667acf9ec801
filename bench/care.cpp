#include "care.h"

#include "core/maintenance/compacta.h"
#include "core/maintenance/copias.h"
#include "core/maintenance/proteccion.h"
#include "core/maintenance/restauracion.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <iostream>

using namespace Qt::StringLiterals;

namespace bench
{

namespace
{

constexpr double patienceForABackup = 10000, patienceToProtect = 45000, patienceToCompact = 60000,
                 patienceToRestore = 20000, longestSilence = 1000;

/// How long a stage that tells how far it is was silent at most, in milliseconds: so long a person waits for
/// "Detener".
class Silence
{
public:
    mantenimiento::Avance told()
    {
        return [this](const QString &stage, qint64, qint64 total) {
            if (total > 0 && stage == stage_)
                longest_ = std::max(longest_, since_.elapsed());
            stage_ = stage;
            since_.start();
            return true;
        };
    }
    double longest() const { return static_cast<double>(longest_); }

private:
    QElapsedTimer since_;
    QString stage_;
    qint64 longest_ = 0;
};

void require(bool done, const QString &why)
{
    if (!done)
        throw std::runtime_error(why.toStdString());
}

} // namespace

void care(const Report &report)
{
    const QTemporaryDir folder(QDir(basic::programFolder()).filePath(u"cuidado-XXXXXX"_s));
    const QString base = folder.filePath(u"BASE.MDB"_s), connect = MODULE11::conexionDeLaBase();
    const QDateTime now = basic::now();
    Silence silence;
    respaldo::Destino to;
    to.carpeta = folder.path();
    report("backup of the whole file, checked", elapsed([&] {
               respaldo::respaldar(to, basic::programFile(u"BASE.MDB"_s), connect, now, silence.told());
           }),
           patienceForABackup);
    require(QFile::copy(folder.filePath(respaldo::nombre(now)), base), u"no copy to work on"_s);
    QString failure;
    report("a new password for the whole file", elapsed([&] {
               failure = proteccion::proteger(folder.path(), u"qTzR8mvW2"_s, u"qTzR8mvW2"_s, silence.told());
           }),
           patienceToProtect);
    require(failure.isEmpty(), failure);
    report("the whole file compacted in its place",
           elapsed([&] { failure = compacta::actualizar(folder.path(), connect, silence.told()); }),
           patienceToCompact);
    require(failure.isEmpty(), failure);
    report("the way back to a backup", elapsed([&] {
               restauracion::restaurar(folder.filePath(respaldo::nombre(now)), folder.path(),
                                       restauracion::nombreAparte(now), connect, silence.told());
           }),
           patienceToRestore);
    report("silence of a copy or a compaction under way", silence.longest(), longestSilence);
}

} // namespace bench
