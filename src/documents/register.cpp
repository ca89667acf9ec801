#include "documents/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "documents/listings/panInfTurnos.h"
#include "documents/listings/panInformes.h"
#include "documents/prescriptions/pan_Recetario.h"
#include "documents/prescriptions/winReceta.h"

void documents::registerScreens()
{
    screens::add<pan_Recetario>("pan_Recetario");
    screens::add<panInformes>("panInformes");
    screens::add<panInfTurnos>("panInfTurnos");
    ports::emiteReceta.provide(EmiteReceta);
}
