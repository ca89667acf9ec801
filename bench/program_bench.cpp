// How long the program's heavy moments take on a practice's folder, as a person would wait for them:
//   bench_program FOLDER
// Ends non-zero when something was over its limit.
#include "appointments.h"
#include "births.h"
#include "care.h"
#include "complements.h"
#include "console.h"
#include "controls.h"
#include "eyes.h"
#include "figures.h"
#include "laboratory.h"
#include "measure.h"
#include "money.h"
#include "onpractice.h"
#include "prescriptions.h"
#include "specialties.h"
#include "summary.h"
#include "teeth.h"
#include "vaccines.h"
#include "visits.h"

#include "clinical/patients/panSelPaciente.h"
#include "core/database/actualiza.h"
#include "core/session/recetario.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "core/windows/Vademecum.h"
#include "paediatrics/charts/panPercentil.h"
#include "platform/basic/environment.h"

#include <QElapsedTimer>

#include <iostream>

using namespace Qt::StringLiterals;

namespace
{

bench::Limits limits;

void report(const char *work, double milliseconds, double limit)
{
    limits.time(work, milliseconds, limit);
}

void measure()
{
    MODULE11::valoresIniciales();
    QElapsedTimer timer;
    timer.start();
    MODULE11::BaseDatos.open(basic::programFile(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
    MODULE11::ActualizaBase();
    MODULE11::prepararRecetario();
    Vademecum window;
    window.show();
    window.grab();
    report("start-up to the main window, upgrade list included", bench::milliseconds(timer), 1500);

    for (const char *which : {"first", "again"}) {
        panSelPaciente register_;
        report((std::string("panSelPaciente, open to first paint, ") + which).c_str(),
               bench::untilPainted(register_), 150);
    }
    panPercentil chart(*charts::classicalChart(u"panPercenPeso"));
    chart.setTag(u"<TODOS>"_s);
    report("all patients' measures on a chart", bench::untilPainted(chart), 2000);
    limits.check("resident memory", bench::resident(), " MB", 200);
    // Only a practice made with a year of places can be booked without a box in the way.
    if (!MODULE11::BaseDatos.openRecordset(u"DisTurnos"_s).eof())
        bench::appointments(report);
    bench::visits(report);
    bench::prescriptions(report);
    bench::laboratory(report);
    bench::births(report);
    bench::eyes(report);
    bench::controls(report);
    bench::summary(report);
    bench::specialties(report);
    bench::teeth(report);
    bench::figures(report);
    bench::care(report);
    bench::vaccines(report);
    bench::complements(report);
    bench::money(report);
    bench::console(report);
    window.hide();
}

} // namespace

int main(int argc, char **argv)
{
    return bench::onPractice(argc, argv, limits, measure);
}
