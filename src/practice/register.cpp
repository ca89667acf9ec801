#include "practice/register.h"

#include "core/session/screens.h"
#include "practice/appointments/otorgaTurno.h"
#include "practice/appointments/panEstadosTurnos.h"
#include "practice/appointments/panTurnos.h"
#include "practice/professionals/panProfesionales.h"

using namespace Qt::StringLiterals;

void practice::registerScreens()
{
    screens::add<panTurnos>(u"panTurnos"_s);
    screens::add<panEstadosTurnos>(u"panEstadosTurnos"_s);
    screens::add<panProfesionales>(u"panProfesionales"_s);
    screens::addOperation(u"OtorgaTurno"_s, OtorgaTurno);
}
