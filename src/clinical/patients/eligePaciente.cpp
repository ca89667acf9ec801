#include "clinical/patients/eligePaciente.h"

#include "clinical/patients/panSeekPaciente.h"
#include "clinical/patients/panSelPaciente.h"
#include "core/services/paciente.h"

std::optional<qint64> EligePaciente()
{
    panSelPaciente seleccion;
    seleccion.showModal();
    return services::numeroDePaciente(seleccion.tag());
}

QString PideNombreDePaciente()
{
    panSeekPaciente dialogo;
    dialogo.showModal();
    return dialogo.tag() == u"SI" ? dialogo.texto() : QString();
}
