#pragma once

#include "platform/basic/value.h"

namespace clinical
{

/// A patient's age as the practice counts it.
struct Edad {
    int anios = 0, meses = 0, dias = 0; ///< as the page tells it
    qint64 diasDeVida = 0;
    int mesesDeVida = 0; ///< of 30.39 days
};

/// Counted by walking the calendar from the birth to the day before yesterday's end: a month is complete on
/// the day of the birth, or after 31 days where a month has no such day.
Edad edadDe(basic::Date nacimiento, basic::Date hoy);

} // namespace clinical
