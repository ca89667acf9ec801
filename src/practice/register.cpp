#include "practice/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "practice/appointments/otorgaTurno.h"
#include "practice/appointments/panEstadosTurnos.h"
#include "practice/appointments/panTurnos.h"
#include "practice/professionals/panProfesionales.h"

using namespace Qt::StringLiterals;

void practice::registerScreens()
{
    screens::add<panTurnos>("panTurnos");
    screens::add<panEstadosTurnos>("panEstadosTurnos");
    screens::add<panProfesionales>("panProfesionales");
    ports::otorgaTurno.provide(OtorgaTurno);
}
