#include "core/services/profesional.h"

#include "core/services/services.h"
#include "platform/basic/errors.h"

using namespace Qt::StringLiterals;

basic::Value MODULE11::CampoDelProfesional(const QString &nombre, QStringView campo)
{
    basic::Value valor = basic::Null{};
    basic::ignoringErrors(
        [&] { valor = BuscaCampo(u"Select * from profesionales where nombre = '%1'"_s.arg(nombre), campo); });
    return valor;
}
