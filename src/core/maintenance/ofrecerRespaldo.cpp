#include "core/maintenance/ofrecerRespaldo.h"

#include "core/maintenance/respaldo.h"
#include "core/services/services.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/progress.h"
#include "platform/settings/settings.h"

#include <QDir>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

/// The folder of the backups, asked for and kept when there is none; empty when none was chosen.
QString carpetaDeRespaldo()
{
    const QString seccion = u"Miscelaneas"_s, clave = u"RutaDestinoBackup"_s;
    QString carpeta = settings::getSetting(seccion, clave);
    if (carpeta.isEmpty()) {
        carpeta = forms::folderDialog(u"Seleccione destino del backup"_s, QDir::rootPath());
        if (!carpeta.isEmpty())
            settings::saveSetting(seccion, clave, carpeta);
    }
    return carpeta;
}

bool copiarA(const QString &carpeta)
{
    forms::Progress avance(u"Se copia la base de datos"_s);
    return respaldo::copiar(basic::programFile(u"BASE.MDB"_s),
                            QDir(carpeta).filePath(respaldo::nombre(basic::now())), conexionDeLaBase(),
                            [&](qint64 hechos, qint64 total) { return avance.tell(hechos, total); });
}

} // namespace

bool ofrecerRespaldo(QWidget *padre)
{
    const auto quiere = forms::askOrCancelBox(
        u"¿Desea hacer una copia de seguridad de la base de datos antes de continuar?"_s,
        u"Copia de seguridad"_s, forms::Icon::Question);
    if (!quiere.value_or(false))
        return quiere.has_value();
    const QString carpeta = carpetaDeRespaldo();
    if (carpeta.isEmpty())
        return false;
    try {
        padre->setCursor(Qt::WaitCursor);
        const bool entera = copiarA(carpeta);
        padre->unsetCursor();
        return entera;
    } catch (const basic::Error &error) {
        padre->unsetCursor();
        return PreguntaSiBorra(
            u"La copia de seguridad no se pudo hacer.\n%1\n¿Continuar sin ella?"_s.arg(error.description()));
    }
}

} // namespace MODULE11
