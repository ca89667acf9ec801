#include "core/maintenance/pasos.h"

#include "platform/basic/errors.h"

namespace mantenimiento
{

std::optional<PasoFallido> hacer(const std::vector<Paso> &pasos)
{
    for (const Paso &paso : pasos) {
        try {
            paso.obra();
        } catch (const basic::Error &error) {
            return PasoFallido{paso.texto, error.description()};
        }
    }
    return {};
}

} // namespace mantenimiento
