#include "practice/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "practice/affiliates/panImportAfiliados.h"
#include "practice/appointments/otorgaTurno.h"
#include "practice/appointments/panEstadosTurnos.h"
#include "practice/appointments/panTurnos.h"
#include "practice/cashbook/panCaja.h"
#include "practice/professionals/panProfesionales.h"
#include "practice/stock/panArticulos.h"

using namespace Qt::StringLiterals;

void practice::registerScreens()
{
    screens::add<panTurnos>("panTurnos");
    screens::add<panEstadosTurnos>("panEstadosTurnos");
    screens::add<panProfesionales>("panProfesionales");
    screens::add<panCaja>("panCaja");
    screens::add<panImportAfiliados>("panImportAfiliados");
    screens::add<panArticulos>("panArticulos");
    ports::otorgaTurno.provide(OtorgaTurno);
}
