#include "core/windows/Vademecum.h"

#include "core/maintenance/compacta.h"
#include "core/maintenance/copiaPrevia.h"
#include "core/maintenance/copias.h"
#include "core/maintenance/restauracion.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"

#include <QDir>

/// What the main window tells and does about the practice's file as a whole.

using namespace Qt::StringLiterals;

namespace
{

void volverAlRespaldo(const QString &base, const QString &respaldo)
{
    try {
        mantenimiento::trabajar(u"Espere miestras se actualiza la base de datos..."_s,
                                mantenimiento::Detencion::Imposible, [&](const auto &avance) {
                                    return respaldo::copiar(respaldo, base, MODULE11::conexionDeLaBase(),
                                                            avance, respaldo::Origen::Quieto);
                                });
    } catch (const basic::Error &error) {
        MODULE11::MuestraError(error.description());
    }
}

void ofrecerElRespaldo(const QString &carpeta)
{
    const QString base = QDir(carpeta).filePath(u"BASE.MDB"_s),
                  respaldo = QDir(carpeta).filePath(u"BASE.BAK"_s);
    forms::msgBox(
        u"El archivo BASE.MDB no existe !!\nHa sido eliminado o movido de la carpeta %1\nEste archivo contiene información vital del sistema y sus datos."_s
            .arg(carpeta),
        forms::Icon::Critical, u"Problema detectado"_s);
    if (!QFileInfo::exists(respaldo))
        return;
    if (MODULE11::Pregunta(
            u"Existe un archivo-respaldo que puede tener datos no actualizados de su base, el sistema si ud. lo desea puede copiar la base de datos de este archivo-respaldo \nDesea realizar la actualización ?"_s))
        volverAlRespaldo(base, respaldo);
    else
        forms::msgBox(u"Deberá contactarse con el servicio técnico de Torvendo! para mas información"_s,
                      forms::Icon::Critical, u"Error encontrado"_s);
}

} // namespace

/// Where the file is missing, what there is to go back to; else what reminds of the copies.
void Vademecum::avisarDeLaBase()
{
    if (MODULE11::BaseDatos.isOpen()) {
        recordarElRespaldo();
        return;
    }
    const QString hay = restauracion::queHacer(basic::programFolder());
    if (!hay.isEmpty())
        franja_.avisar(u"No está el archivo BASE.MDB, la base de datos del sistema. "_s + hay,
                       u"Restaurar..."_s, [] { screens::showModal("panRestaurar"); });
}

/// The folders are looked at beside the window: one on the network may not answer.
void Vademecum::recordarElRespaldo()
{
    const respaldo::Destino destino = respaldo::destino();
    if (destino.carpeta.isEmpty())
        return;
    mirada_ = std::jthread([this, destino, hoy = basic::now()] {
        const QString aviso = respaldo::aviso(destino, hoy);
        const auto mostrar = [this, aviso] {
            franja_.avisar(aviso, u"Respaldar ahora"_s, [this] { respaldarDesdeLaFranja(); });
        };
        if (!aviso.isEmpty())
            QMetaObject::invokeMethod(this, mostrar, Qt::QueuedConnection);
    });
}

void Vademecum::respaldarDesdeLaFranja()
{
    if (MODULE11::respaldarAhora())
        franja_.avisar(u"La copia de seguridad está hecha y revisada."_s);
}

void Vademecum::VerificaBase()
{
    const QString carpeta = basic::programFolder();
    if (!QFileInfo::exists(QDir(carpeta).filePath(u"BASE.MDB"_s))) {
        ofrecerElRespaldo(carpeta);
        return;
    }
    MODULE11::BaseDatos.close();
    QString fallo;
    mantenimiento::trabajar(u"Espere miestras se actualiza la base de datos..."_s,
                            mantenimiento::Detencion::Imposible, [&](const auto &avance) {
                                fallo = compacta::actualizar(carpeta, MODULE11::conexionDeLaBase(), avance);
                                return fallo.isEmpty();
                            });
    if (!fallo.isEmpty())
        forms::msgBox(fallo, forms::Icon::Critical, u"Error"_s);
}
