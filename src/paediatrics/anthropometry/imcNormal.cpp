#include "paediatrics/anthropometry/imcNormal.h"

#include "paediatrics/anthropometry/tablaLms.h"

namespace paediatrics
{

namespace
{

constexpr qint64 diasDeAdulto = 6939; ///< nineteen years
constexpr std::pair deAdulto{18.5, 25.0};
constexpr double tercerPercentil = -1.880794;

} // namespace

std::optional<std::pair<double, double>> imcNormal(const QString &sexo, qint64 diasDeVida)
{
    if (diasDeVida >= diasDeAdulto)
        return deAdulto;
    for (const char16_t *referencia : {u"oms_imc_0_5", u"oms2007_imc_5_19"}) {
        const TablaLms *tabla = TablaLms::de(referencia, sexo);
        if (!tabla)
            return std::nullopt;
        if (const auto parametros = tabla->en(static_cast<double>(diasDeVida)))
            return std::pair{valorEn(*parametros, tercerPercentil), valorEn(*parametros, -tercerPercentil)};
    }
    return std::nullopt;
}

} // namespace paediatrics
