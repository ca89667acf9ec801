#pragma once

#include "paediatrics/vaccines/edades.h"

#include <span>
#include <vector>

/// National vaccination calendars, as published, that a practice may take for its plan.
namespace vacunas
{

struct Calendario {
    const char *archivo, *pais, *nombre;
};
std::span<const Calendario> calendarios();

struct DosisDeCalendario {
    DosisDelPlan dosis;
    int orden = 0;
    EdadDeDosis edad;
};
/// The doses for every child, and those for the children born from or until a day; not those for a risk, a
/// region or a season, for which the sheet has no room.
std::vector<DosisDeCalendario> leerCalendario(const Calendario &calendario);

/// Makes the calendar the practice's plan. What the plan told about a dose that stays is kept; the doses
/// noted of patients are not touched. Throws dao::Error.
void cargarCalendario(const Calendario &calendario);

} // namespace vacunas
