#include "specialties/register.h"

#include "core/session/ports.h"
#include "core/session/screens.h"
#include "specialties/cardiology/panAnteCardio.h"
#include "specialties/cardiology/panCardioPrin.h"
#include "specialties/cardiology/panGraMed.h"
#include "specialties/cardiology/panIMC.h"
#include "specialties/eye/panOft.h"
#include "specialties/eye/registrarOftalmo.h"
#include "specialties/eye/visita.h"
#include "specialties/eye/visor.h"
#include "specialties/gynaecology/fichaGineco.h"
#include "specialties/gynaecology/panCalRiesgoGesta.h"
#include "specialties/gynaecology/panGinecoExamen.h"
#include "specialties/gynaecology/panGinecoGestas.h"
#include "specialties/gynaecology/panGinecoOtros.h"
#include "specialties/gynaecology/panVidaSexual.h"
#include "specialties/odontology/tooth.h"
#include "specialties/risk/panEvalDeportiva.h"
#include "specialties/risk/panRiesgoOperatorio.h"
#include "specialties/risk/panTestCardio.h"

void specialties::registerScreens()
{
    screens::add<panAnteCardio>("panAnteCardio");
    screens::add<panCardioPrin>("panCardioPrin");
    screens::add<panIMC>("panIMC");
    screens::add<panGraMed>("panGraMed");
    screens::add<panTestCardio>("panTestCardio");
    screens::add<panRiesgoOperatorio>("panRiesgoOperatorio");
    screens::add<panEvalDeportiva>("panEvalDeportiva");
    screens::add<panOft>("panOft");
    screens::add<panGraBioX>("panGraBioX");
    screens::add<panGraFondoX>("panGraFondoX");
    ports::registrarOftalmo.provide(registrarOftalmo);
    ports::ultimaVisitaOftalmo.provide(oftalmo::ultimaVisita);
    screens::add<panAnteGineco>("panAnteGineco");
    screens::add<panGinecoObs1>("panGinecoObs1");
    screens::add<panGinecoObs2>("panGinecoObs2");
    screens::add<panGinecoMamas>("panGinecoMamas");
    screens::add<panGinecoExamen>("panGinecoExamen");
    screens::add<panGinecoGestas>("panGinecoGestas");
    screens::add<panGinecoOtros>("panGinecoOtros");
    screens::add<panVidaSexual>("panVidaSexual");
    screens::add<panCalRiesgoGesta>("panCalRiesgoGesta");
    screens::add<tooth>("tooth");
    ports::abrePresupuestos.provide(tooth::abrirPresupuestos);
}
