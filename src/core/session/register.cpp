#include "core/session/register.h"

#include "core/maintenance/panBackup.h"
#include "core/maintenance/panErrorBase.h"
#include "core/maintenance/panProtBase.h"
#include "core/maintenance/panRestaurar.h"
#include "core/security/panAdmAlarmas.h"
#include "core/security/panNiveles.h"
#include "core/security/panUsuarios.h"
#include "core/service/panGArchivos.h"
#include "core/service/panServices.h"
#include "core/session/screens.h"
#include "core/windows/acerca.h"
#include "core/windows/asistente.h"
#include "core/windows/panPersonaliza.h"

using namespace Qt::StringLiterals;

void core::registerScreens()
{
    screens::add<panPersonaliza>("panPersonaliza");
    screens::add<panBackup>("panBackup");
    screens::add<panProtBase>("panProtBase");
    screens::add<panRestaurar>("panRestaurar");
    screens::add<panErrorBase>("panErrorBase");
    screens::add<panErrorB>("panErrorB");
    screens::add<asistente>("asistente");
    screens::add<acerca>("acerca");
    screens::add<panUsuarios>("panUsuarios");
    screens::add<panNiveles>("panNiveles");
    screens::add<panAdmAlarmas>("panAdmAlarmas");
    screens::add<panServices>("panServices");
    screens::add<panGArchivos>("panGArchivos");
}
