#include "documents/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "documents/prescriptions/pan_Recetario.h"
#include "documents/prescriptions/winReceta.h"

void documents::registerScreens()
{
    screens::add<pan_Recetario>("pan_Recetario");
    ports::emiteReceta.provide(EmiteReceta);
}
