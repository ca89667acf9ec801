#include "core/services/profesional.h"

#include "core/services/services.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

basic::Value MODULE11::CampoDelProfesional(const QString &nombre, QStringView campo)
{
    return BuscaCampo(u"Select * from profesionales where nombre = "_s + dao::quoted(nombre), campo);
}
