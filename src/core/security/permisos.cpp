#include "core/security/permisos.h"

#include "core/services/profesional.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

std::optional<QString> FiltroDePacientes()
{
    const basic::Value id = CampoDelProfesional(DrActual, u"idProfesional");
    if (!id.isNumeric())
        return u" true "_s;
    const basic::Value permiso =
        BuscaCampo(u"Select * from profesionales where idProfesional = "_s + id.text(), u"TipoPermiso");
    if (permiso.isNull()) {
        forms::msgBox(
            u"Error en la configuración de derechos de uso de pacientes del sistema, debe definirse correctamente en la pestaña 'Permisos de usuario' en la pantalla de profesionales ( Archivos/Tablas Varias/Tabla de profesionales )"_s,
            forms::Icon::Critical, u"Error"_s);
        return std::nullopt;
    }
    return permiso.text() == u"U" ? u" idProfesional = %1 "_s.arg(id.text()) : u" true "_s;
}

} // namespace MODULE11
