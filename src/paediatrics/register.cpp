#include "paediatrics/register.h"

#include "core/session/screens.h"
#include "paediatrics/anthropometry/panCrecimiento.h"
#include "paediatrics/charts/chartcatalogue.h"
#include "paediatrics/charts/panCurvasOMS.h"
#include "paediatrics/charts/panMuesCurvas.h"
#include "paediatrics/charts/panPercentil.h"

using namespace Qt::StringLiterals;

void paediatrics::registerScreens()
{
    screens::add<panCrecimiento>(u"panCrecimiento"_s);
    screens::add<panMuesCurvas>(u"panMuesCurvas"_s);
    screens::add<panCurvasOMS>(u"panCurvasOMS"_s);
    for (const charts::ClassicalChart &chart : charts::classicalCharts())
        screens::add(chart.form.toString(), [&chart] { return std::make_unique<panPercentil>(chart); });
}
