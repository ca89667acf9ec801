#pragma once

#include "core/records/tabla.h"
#include "paediatrics/vaccines/pannueVac.h"

/// "Plan de Vacunación": the practice's plan, dose by dose, and the national calendars it may be replaced by.
class panCalVacunas : public records::Tabla
{
    Q_OBJECT
public:
    panCalVacunas();

private:
    vacunas::FilaDelPlan filaActual();
    void escribir(dao::Recordset &fila, const vacunas::FilaDelPlan &datos, int meses);
    void agregar();
    void editar();
    void quitar();
    void cargar();

    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< calendars
};
