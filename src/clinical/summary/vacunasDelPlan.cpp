#include "clinical/summary/vacunasDelPlan.h"

#include "core/session/session.h"
#include "platform/dao/database.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace clinical
{

std::vector<VacunaDelPlan> vacunasDelPlan(const Persona &persona)
{
    std::vector<VacunaDelPlan> vacunas;
    dao::Recordset dosis = MODULE11::BaseDatos.openRecordset(u"Vacunas"_s);
    dosis.setIndex(u"VacIndex");
    for (dao::Recordset plan = MODULE11::BaseDatos.openRecordset(u"select * from CalVacunas order by orden"_s,
                                                                 dao::Recordset::Kind::Snapshot);
         !plan.eof(); plan.moveNext()) {
        const QString vacuna = plan[u"Vacuna"].text();
        auto casilla = std::ranges::find(vacunas, vacuna, &VacunaDelPlan::vacuna);
        if (casilla == vacunas.end())
            casilla = vacunas.insert(vacunas.end(), {vacuna, plan[u"Descripcion"].text(), std::nullopt});
        if (persona.edad.mesesDeVida > plan[u"Tiempo en meses"].number())
            continue;
        dosis.seek(u"=", {basic::Value(persona.numero), plan[u"Vacuna"].value(), plan[u"Dosis"].value()});
        if (!dosis.noMatch() && dosis[u"observaciones"].text() == u"INDICADA")
            casilla->indicada = dosis[u"fecha"].date();
    }
    return vacunas;
}

} // namespace clinical
