#pragma once

#include "clinical/summary/estados.h"

#include <vector>

namespace clinical
{

/// A vaccine of the practice's plan, as the patient's page shows it.
struct VacunaDelPlan {
    QString vacuna, descripcion;
    std::optional<basic::Date>
        indicada; ///< the last dose of the patient's age that is indicated and not given
};

/// Each vaccine of the plan once, in its order. Throws dao::Error.
std::vector<VacunaDelPlan> vacunasDelPlan(const Persona &persona);

} // namespace clinical
