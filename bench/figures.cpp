#include "figures.h"

#include "core/session/session.h"
#include "figures/evolucionAnual.h"
#include "figures/prevalencia.h"
#include "figures/turnosPorMes.h"
#include "platform/basic/environment.h"

#include <iostream>

using namespace Qt::StringLiterals;
using namespace ::figures;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr double patienceForMonths = 500, patienceForValues = 300, patienceForNames = 3000,
                 patienceForCounts = 700;

void overAllVisits(const Report &report)
{
    const Seleccion all{u"Ambos"_s, u"Todos"_s, Seleccion::Rango::Todos, u"Todas"_s};
    const basic::Date today = basic::today();
    report("prevalence of diagnoses over all visits",
           elapsed([&] { porNombre(Nombrado::Patologias, all, today, [](qint64) { return true; }); }),
           patienceForNames);
    report("prevalence by sex", elapsed([&] { porSexo(all, today); }), patienceForCounts);
    report("prevalence by age", elapsed([&] { porEdades(all, today); }), patienceForCounts);
}

} // namespace

void figures(const Report &report)
{
    const dao::Recordset last =
        BaseDatos.openRecordset(u"Select top 1 Fecha from Consulta order by Fecha desc"_s);
    if (last.eof()) {
        std::cout << "skipped: figures, no visits\n";
        return;
    }
    const int year = last.value(0).date().date().year();
    report("months of a year of visits",
           elapsed([&] { vecesPorMes(Nombrado::Patologias, u"Otitis media aguda"_s, year, {}); }),
           patienceForMonths);
    report("months of a year of appointments", elapsed([&] {
               BaseDatos
                   .openRecordset(consultaDeTurnos({QDate(year, 1, 1), QDate(year, 12, 31), {}, {}, {}, {}}))
                   .rowCount();
           }),
           patienceForMonths);
    report("values of a column of the visits for a criterion", elapsed([&] {
               BaseDatos
                   .openRecordset(
                       u"Select distinct top 300 [Motivo] from [Consulta] where not ([Motivo] is null)"_s)
                   .rowCount();
           }),
           patienceForValues);
    overAllVisits(report);
}

} // namespace bench
