#include "documents/listings/pedido.h"

#include "core/services/services.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;

namespace seleccion
{

std::optional<Periodo> periodoElegido(forms::DTPicker &desde, forms::DTPicker &hasta)
{
    const Periodo periodo{desde.value(), hasta.value()};
    if (periodo.desde <= periodo.hasta)
        return periodo;
    const QString motivo = u"La última fecha es anterior a la primera."_s;
    MODULE11::MuestraError(motivo);
    forms::markWrong(hasta, motivo);
    return std::nullopt;
}

std::optional<QString> textoElegido(const forms::ComboBox &filtro)
{
    const QString texto = filtro.value().trimmed();
    if (texto.isEmpty() || texto == filtro.itemText(0))
        return std::nullopt;
    return texto;
}

std::optional<qint64> claveElegida(const forms::ComboBox &filtro)
{
    if (filtro.currentIndex() <= 0)
        return std::nullopt;
    return filtro.currentData().toLongLong();
}

} // namespace seleccion
