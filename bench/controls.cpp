#include "controls.h"

#include "core/session/session.h"
#include "paediatrics/control/panControlSano.h"

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

void bench::controls(const Report &report)
{
    constexpr double patience = 120; // milliseconds
    const dao::Recordset vaccinated = BaseDatos.openRecordset(
        u"Select top 1 Numero from Pacientes where Numero in (Select Paciente from Vacunas) and Numero in "
        u"(Select Paciente from Medidas) and Numero not in (Select IdPaciente from Perinatal)"_s);
    if (vaccinated.eof()) {
        std::cout << "skipped: controls, no patient who was measured and vaccinated\n";
        return;
    }
    const QString patient = vaccinated.value(0).text();
    for (int i = 0; i < 3; ++i) {
        panControlSano window;
        window.setTag(patient);
        report("panControlSano, open to first paint", untilPainted(window), patience);
    }
    BaseDatos.execute(u"Delete * from Binomio where Paciente = "_s + patient);
    BaseDatos.execute(u"Delete * from Perinatal where IdPaciente = "_s + patient);
}
