#include "specialties/register.h"

#include "core/session/screens.h"
#include "specialties/risk/panEvalDeportiva.h"
#include "specialties/risk/panRiesgoOperatorio.h"
#include "specialties/risk/panSelRiesgoCardio.h"
#include "specialties/risk/panTestCardio.h"

void specialties::registerScreens()
{
    screens::add<panTestCardio>("panTestCardio");
    screens::add<panRiesgoOperatorio>("panRiesgoOperatorio");
    screens::add<panEvalDeportiva>("panEvalDeportiva");
}
