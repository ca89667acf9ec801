#include "clinical/register.h"

#include "clinical/history/panEditHC.h"
#include "clinical/patients/fichas.h"
#include "clinical/patients/hc.h"
#include "clinical/visits/panVisitas.h"
#include "core/session/screens.h"

using namespace Qt::StringLiterals;

void clinical::registerScreens()
{
    screens::add<panEditHC>(u"panEditHC"_s);
    screens::add<hc>(u"hc"_s);
    screens::add<panVisitas>(u"panVisitas"_s);
    screens::addOperation(u"NuevaFicha"_s, NuevaFicha);
    screens::addOperation(u"AbreFicha"_s, AbreFicha);
    screens::addOperation(u"BorraFicha"_s, BorraFicha);
    screens::addQuery(u"EligePaciente"_s, EligePaciente);
    screens::addQuery(u"PideNombreDePaciente"_s, PideNombreDePaciente);
}
