#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace paediatrics
{

/// What is normal of the body-mass index at an age: the third and the ninety-seventh percentile of the World
/// Health Organization's figures under nineteen years, 18.5 to 25 after. Nothing for a sex without figures.
std::optional<std::pair<double, double>> imcNormal(const QString &sexo, qint64 diasDeVida);

} // namespace paediatrics
