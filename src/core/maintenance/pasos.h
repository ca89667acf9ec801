#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace mantenimiento
{

/// One step of work on the practice's file, and the text that is shown when it fails. It throws basic::Error.
struct Paso {
    QString texto;
    std::function<void()> obra;
};

struct PasoFallido {
    QString texto;
    QString motivo; ///< the error's own words
};

/// Does the steps up to the first that fails.
std::optional<PasoFallido> hacer(const std::vector<Paso> &pasos);

} // namespace mantenimiento
