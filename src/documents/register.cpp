#include "documents/register.h"

#include "core/session/screens.h"
#include "documents/listings/panInfTurnos.h"
#include "documents/listings/panInformes.h"

void documents::registerScreens()
{
    screens::add<panInformes>("panInformes");
    screens::add<panInfTurnos>("panInfTurnos");
}
