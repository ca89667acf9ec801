#include "clinical/visits/controlDeSalud.h"

#include "clinical/visits/consulta.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

void consultas::registrarControlDeSalud(const ports::ControlDeSalud &control)
{
    const QString controlDeSalud = u"Control de Salud"_s; // stored and compared
    Visita visita{.fecha = control.fecha,
                  .hora = basic::format(basic::time(), u"HH:MM"),
                  .clase = controlDeSalud,
                  .motivo = controlDeSalud,
                  .peso = control.peso,
                  .talla = control.talla,
                  .perimetroCefalico = control.perimetroCefalico,
                  .especialidad = u"Pediatría"_s};
    visita.renglones[Diagnosticos] = control.diagnosticos;
    visita.renglones[Tratamientos] = control.tratamientos;
    registrarConsulta(QString::number(control.paciente), visita);
}
