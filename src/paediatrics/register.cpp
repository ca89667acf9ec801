#include "paediatrics/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "core/windows/despacho.h"
#include "paediatrics/anthropometry/imcNormal.h"
#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/anthropometry/panCrecimiento.h"
#include "paediatrics/anthropometry/ultimasMedidas.h"
#include "paediatrics/charts/chartcatalogue.h"
#include "paediatrics/charts/panCurvasOMS.h"
#include "paediatrics/charts/panMuesCurvas.h"
#include "paediatrics/charts/panPercentil.h"
#include "paediatrics/control/panAdole.h"
#include "paediatrics/control/panAlimentacion.h"
#include "paediatrics/control/panControlSano.h"
#include "paediatrics/control/panEscolar.h"
#include "paediatrics/perinatal/panAntPerinatales.h"
#include "paediatrics/perinatal/panResPerinat.h"
#include "paediatrics/perinatal/panfichaPer.h"
#include "paediatrics/pressure/panTension.h"
#include "paediatrics/sight/panVisual.h"
#include "paediatrics/vaccines/edicionDelPlan.h"
#include "paediatrics/vaccines/panCalVacunas.h"
#include "paediatrics/vaccines/panPlanVacunas.h"
#include "paediatrics/vaccines/panVacunasAtrasadas.h"

using namespace Qt::StringLiterals;

namespace
{

void AbrePerinatal()
{
    screens::showModal("panAntPerinatales", menu::activePatient());
}

} // namespace

void paediatrics::registerScreens()
{
    ports::tomarMedidas.provide(TomarMedidas);
    ports::calculaImc.provide(CalcularIMC);
    ports::imcNormal.provide(imcNormal);
    ports::ultimasMedidas.provide(ultimasMedidas);
    screens::add<panCrecimiento>("panCrecimiento");
    screens::add<panMuesCurvas>("panMuesCurvas");
    screens::add<panCurvasOMS>("panCurvasOMS");
    screens::add<panAntPerinatales>("panAntPerinatales");
    screens::add<panResPerinat>("panResPerinat");
    screens::add<panfichaPer>("panfichaPer");
    screens::add<panTension>("panTension");
    screens::add<panVisual>("panVisual");
    screens::add<panControlSano>("panControlSano");
    screens::add<panAlimentacion>("panAlimentacion");
    screens::add<panEscolar>("panEscolar");
    screens::add<panAdole>("panAdole");
    screens::addOperation("AbrePerinatal", AbrePerinatal);
    screens::add<panPlanVacunas>("panPlanVacunas");
    screens::add<panCalVacunas>("panCalVacunas");
    ports::agregaDosisAlPlan.provide(vacunas::agregarDosis);
    ports::editaDosisDelPlan.provide(vacunas::editarDosis);
    screens::add<panVacunasAtrasadas>("panVacunasAtrasadas");
    for (const charts::ClassicalChart &chart : charts::classicalCharts())
        screens::add(screens::Window::find(chart.form).value(),
                     [&chart] { return std::make_unique<panPercentil>(chart); });
}
