#include "subsystems.h"

#include "clinical/register.h"
#include "core/session/register.h"
#include "core/windows/ayuda.h"
#include "documents/register.h"
#include "figures/register.h"
#include "paediatrics/register.h"
#include "practice/register.h"
#include "specialties/register.h"

void app::prepare()
{
    core::registerScreens();
    clinical::registerScreens();
    paediatrics::registerScreens();
    practice::registerScreens();
    specialties::registerScreens();
    documents::registerScreens();
    figures::registerScreens();
    instalarAyuda();
}
