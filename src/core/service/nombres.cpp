#include "core/service/nombres.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString service::reparoDelNombre(const QString &nombre)
{
    if (nombre.isEmpty())
        return u"Escriba el nombre."_s;
    if (nombre.size() > largoDeNombre)
        return u"Un nombre tiene hasta %1 letras."_s.arg(largoDeNombre);
    // What a statement could not name, or would read as something else.
    const bool ajeno = std::ranges::any_of(
        nombre, [](QChar letra) { return !letra.isPrint() || QStringView(u"[].!`\"").contains(letra); });
    return ajeno ? u"Un nombre no lleva corchetes, puntos, comillas ni signos de admiración."_s : QString();
}
