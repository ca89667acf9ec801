#include "practice/register.h"

#include "core/session/screens.h"
#include "practice/professionals/panProfesionales.h"

using namespace Qt::StringLiterals;

void practice::registerScreens()
{
    screens::add<panProfesionales>(u"panProfesionales"_s);
}
