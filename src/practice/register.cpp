#include "practice/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "practice/affiliates/panImportAfiliados.h"
#include "practice/appointments/otorgaTurno.h"
#include "practice/appointments/panEstadosTurnos.h"
#include "practice/appointments/panTurnos.h"
#include "practice/billing/panFacturacion.h"
#include "practice/cashbook/panCaja.h"
#include "practice/daybook/panDiario.h"
#include "practice/professionals/panProfesionales.h"
#include "practice/stock/panArticulos.h"
#include "practice/tariffs/panObras.h"
#include "practice/tariffs/panPrestaciones.h"

using namespace Qt::StringLiterals;

void practice::registerScreens()
{
    screens::add<panTurnos>("panTurnos");
    screens::add<panEstadosTurnos>("panEstadosTurnos");
    screens::add<panProfesionales>("panProfesionales");
    screens::add<panCaja>("panCaja");
    screens::add<panImportAfiliados>("panImportAfiliados");
    screens::add<panArticulos>("panArticulos");
    screens::add<panObras>("panObras");
    screens::add<panPrestaciones>("panPrestaciones");
    screens::add<panDiario>("panDiario");
    screens::add<panFacturacion>("panFacturacion");
    ports::otorgaTurno.provide(OtorgaTurno);
}
