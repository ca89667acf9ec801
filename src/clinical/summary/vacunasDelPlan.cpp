#include "clinical/summary/vacunasDelPlan.h"

#include "core/services/planDeVacunas.h"

#include <algorithm>

namespace clinical
{

std::vector<VacunaDelPlan> vacunasDelPlan(const Persona &persona)
{
    std::vector<VacunaDelPlan> todas;
    vacunas::Registros registros;
    for (const vacunas::DosisDelPlan &dosis : vacunas::plan()) {
        auto casilla = std::ranges::find(todas, dosis.vacuna, &VacunaDelPlan::vacuna);
        if (casilla == todas.end())
            casilla = todas.insert(todas.end(), {dosis.vacuna, dosis.descripcion, std::nullopt});
        if (persona.edad.mesesDeVida <= dosis.meses &&
            registros.buscar(persona.numero, dosis.vacuna, dosis.dosis) && registros.esIndicada())
            casilla->indicada = registros.fila()[u"fecha"].date();
    }
    return todas;
}

} // namespace clinical
