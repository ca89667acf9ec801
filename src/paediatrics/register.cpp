#include "paediatrics/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "paediatrics/anthropometry/imcNormal.h"
#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/anthropometry/panCrecimiento.h"
#include "paediatrics/charts/chartcatalogue.h"
#include "paediatrics/charts/panCurvasOMS.h"
#include "paediatrics/charts/panMuesCurvas.h"
#include "paediatrics/charts/panPercentil.h"
#include "paediatrics/vaccines/panCalVacunas.h"
#include "paediatrics/vaccines/panPlanVacunas.h"
#include "paediatrics/vaccines/panVacunasAtrasadas.h"

using namespace Qt::StringLiterals;

void paediatrics::registerScreens()
{
    ports::tomarMedidas.provide(TomarMedidas);
    ports::imcNormal.provide(imcNormal);
    screens::add<panCrecimiento>("panCrecimiento");
    screens::add<panMuesCurvas>("panMuesCurvas");
    screens::add<panCurvasOMS>("panCurvasOMS");
    screens::add<panPlanVacunas>("panPlanVacunas");
    screens::add<panCalVacunas>("panCalVacunas");
    screens::add<panVacunasAtrasadas>("panVacunasAtrasadas");
    for (const charts::ClassicalChart &chart : charts::classicalCharts())
        screens::add(screens::Window::find(chart.form).value(), [&chart] { return std::make_unique<panPercentil>(chart); });
}
