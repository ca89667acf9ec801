#include "core/maintenance/ofrecerRespaldo.h"

#include "core/maintenance/copias.h"
#include "core/services/services.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"

#include <QDir>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

/// The folder is asked for once, and kept.
respaldo::Destino destinoElegido()
{
    respaldo::Destino destino = respaldo::destino();
    if (destino.carpeta.isEmpty()) {
        destino.carpeta = forms::folderDialog(u"Seleccione destino del backup"_s, QDir::rootPath());
        if (!destino.carpeta.isEmpty())
            respaldo::recordar(destino);
    }
    return destino;
}

} // namespace

bool respaldarAhora()
{
    const respaldo::Destino destino = destinoElegido();
    if (destino.carpeta.isEmpty())
        return false;
    std::optional<respaldo::Hecha> hecha;
    try {
        mantenimiento::trabajar(u"Se hace una copia de seguridad"_s, mantenimiento::Detencion::Posible,
                                [&](const auto &avance) {
                                    hecha = respaldo::respaldar(destino, basic::programFile(u"BASE.MDB"_s),
                                                                conexionDeLaBase(), basic::now(), avance);
                                    return hecha.has_value();
                                });
    } catch (const basic::Error &error) {
        MuestraError(u"La copia de seguridad no se pudo hacer.\n"_s + error.description());
    }
    if (hecha && !hecha->fallaDeLaSegunda.isEmpty())
        Aviso(respaldo::avisoDeLaSegunda(*hecha));
    return hecha.has_value();
}

bool respaldarAntes()
{
    return respaldarAhora() ||
           PreguntaSiBorra(u"No se hizo la copia de seguridad.\n¿Desea continuar sin ella?"_s);
}

bool ofrecerRespaldo(QWidget *padre)
{
    const auto quiere = forms::askOrCancelBox(
        u"¿Desea hacer una copia de seguridad de la base de datos antes de continuar?"_s,
        u"Copia de seguridad"_s, forms::Icon::Question);
    if (!quiere.value_or(false))
        return quiere.has_value();
    const bool seguir = respaldarAntes();
    padre->activateWindow();
    return seguir;
}

} // namespace MODULE11
