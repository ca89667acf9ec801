#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <vector>

/// The weights of a patient over time, and where a body-mass index stands.
namespace pesos
{

/// A weighing of a day, in grams.
struct Punto {
    basic::Date dia;
    double gramos = 0;
    bool operator==(const Punto &) const = default;
};

/// A point for each day on which the patient was weighed, both ends of the period included. Of two weighings
/// of one day the first one counts; a row without a weight is none. Throws dao::Error.
std::vector<Punto> entre(qint64 paciente, basic::Date desde, basic::Date hasta);

/// Whether the patient has measures of any kind in the period.
bool hayMedidas(qint64 paciente, basic::Date desde, basic::Date hasta);

/// The day of the first measures; today without any.
basic::Date primerDia(qint64 paciente);

/// Writes the weighing of a day: a row of `Medidas` with no height and no head circumference.
void agregar(qint64 paciente, basic::Date dia, double kilos);

} // namespace pesos
