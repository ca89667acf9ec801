#include "clinical/register.h"

#include "clinical/catalogues/panCIE10.h"
#include "clinical/catalogues/panDiagnosticos.h"
#include "clinical/catalogues/panSintomas.h"
#include "clinical/catalogues/panTratamientos.h"
#include "clinical/history/panEditHC.h"
#include "clinical/patients/fichas.h"
#include "clinical/patients/hc.h"
#include "clinical/visits/panVisitas.h"
#include "core/session/screens.h"

using namespace Qt::StringLiterals;

namespace
{

void TablaDiagnosticos()
{
    panDiagnosticos diagnosticos;
    diagnosticos.soloMantenimiento();
    diagnosticos.showModal();
}

} // namespace

void clinical::registerScreens()
{
    screens::add<panEditHC>(u"panEditHC"_s);
    screens::add<hc>(u"hc"_s);
    screens::add<panVisitas>(u"panVisitas"_s);
    screens::add<panSintomas>(u"panSintomas"_s);
    screens::add<panDiagnosticos>(u"panDiagnosticos"_s);
    screens::add<panTratamientos>(u"panTratamientos"_s);
    screens::add<panCIE10>(u"panCIE10"_s);
    screens::addOperation(u"TablaDiagnosticos"_s, TablaDiagnosticos);
    screens::addOperation(u"NuevaFicha"_s, NuevaFicha);
    screens::addOperation(u"AbreFicha"_s, AbreFicha);
    screens::addOperation(u"BorraFicha"_s, BorraFicha);
    screens::addQuery(u"EligePaciente"_s, EligePaciente);
    screens::addQuery(u"PideNombreDePaciente"_s, PideNombreDePaciente);
}
