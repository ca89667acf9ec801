#include "core/session/register.h"

#include "core/security/panAdmAlarmas.h"
#include "core/security/panNiveles.h"
#include "core/security/panUsuarios.h"
#include "core/session/screens.h"
#include "core/windows/acerca.h"
#include "core/windows/asistente.h"
#include "core/windows/panPersonaliza.h"

using namespace Qt::StringLiterals;

void core::registerScreens()
{
    screens::add<panPersonaliza>(u"panPersonaliza"_s);
    screens::add<asistente>(u"asistente"_s);
    screens::add<acerca>(u"acerca"_s);
    screens::add<panUsuarios>(u"panUsuarios"_s);
    screens::add<panNiveles>(u"panNiveles"_s);
    screens::add<panAdmAlarmas>(u"panAdmAlarmas"_s);
}
