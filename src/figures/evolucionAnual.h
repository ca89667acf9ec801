#pragma once

#include "figures/catalogo.h"

#include <array>

namespace figures
{

/// How often a year's visits name an item, month by month. One that names it in two places counts twice.
/// `sexo` is "Varon", "Mujer" or empty for both.
std::array<qint64, 12> vecesPorMes(Nombrado que, const QString &nombre, int anio, const QString &sexo);

/// The visits of a month that name it, for a list.
QString visitasDelMes(Nombrado que, const QString &nombre, int anio, int mes, const QString &sexo);

} // namespace figures
