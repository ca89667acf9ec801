#include "clinical/visits/nuevaConsulta.h"

#include "clinical/visits/panNueConsulta.h"
#include "core/services/services.h"

using namespace Qt::StringLiterals;

namespace consultas
{

std::optional<Registrada> capturaYRegistra(const QString &paciente, const QString &especialidad)
{
    panNueConsulta captura;
    if (!especialidad.isEmpty())
        captura.proponerEspecialidad(especialidad);
    for (;;) {
        captura.setTag(paciente);
        captura.showModal();
        if (captura.tag() != u"SI")
            return std::nullopt;
        try {
            return registrarConsulta(paciente, captura.visita());
        } catch (const dao::Error &error) {
            MODULE11::MuestraError(u"La consulta no se guardó.\n"_s + error.description());
        }
    }
}

void avisaExamenSinGuardar(const Registrada &registrada)
{
    if (!registrada.examenSinGuardar.isEmpty())
        MODULE11::MuestraError(u"La consulta se guardó, pero no todo su examen físico.\n"_s +
                               registrada.examenSinGuardar);
}

} // namespace consultas
