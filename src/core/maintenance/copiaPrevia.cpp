#include "core/maintenance/copiaPrevia.h"

#include "core/maintenance/copias.h"
#include "core/services/services.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"

#include <QDir>

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

} // namespace MODULE11

CopiaPrevia::CopiaPrevia(const QString &nombre)
    : CheckBox(nombre, u"&Hacer antes una copia en la carpeta de backup"_s)
{
    setChecked(!respaldo::destino().carpeta.isEmpty());
}

bool CopiaPrevia::hacer() const
{
    return !isChecked() || MODULE11::respaldarAhora() ||
           MODULE11::PreguntaSiBorra(u"No se hizo la copia de seguridad.\n¿Desea continuar sin ella?"_s);
}

#include "moc_copiaPrevia.cpp"
