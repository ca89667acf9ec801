#pragma once

#include "paediatrics/charts/chartcatalogue.h"

#include <QString>

namespace charts
{

/// One row of measures of a child as a chart reads it.
struct Toma {
    double dias;            ///< of age, corrected where the chart corrects it
    double peso, talla, pc; ///< grams, centimetres; 0 where it was not taken
};

/// Where the measure stands among children of the chart's sex, in words; empty where nothing is published.
QString enPalabras(Measure medida, Sex sexo, const Toma &toma);

} // namespace charts
