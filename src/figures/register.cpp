#include "figures/register.h"

#include "core/session/screens.h"
#include "figures/panEstDeta.h"
#include "figures/panEstadTurnos.h"
#include "figures/panEstadisticas.h"
#include "figures/panGraficos.h"
#include "figures/panPrevalencias.h"

void figures::registerScreens()
{
    screens::add<panEstadisticas>("panEstadisticas");
    screens::add<panEstadTurnos>("panEstadTurnos");
    screens::add<panEstDeta>("panEstDeta");
    screens::add<panGraficos>("panGraficos");
    screens::add<panPrevalencias>("panPrevalencias");
}
