#pragma once

#include "core/records/tabla.h"

/// "Plan de Vacunación": the practice's plan, dose by dose, and the national calendars it may be replaced by.
class panCalVacunas : public records::Tabla
{
    Q_OBJECT
public:
    panCalVacunas();

private:
    void quitar();
    void cargar();

    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< calendars
};
