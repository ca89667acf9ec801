#include "documents/register.h"

void documents::registerScreens()
{
}
