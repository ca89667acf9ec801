#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace reports
{

/// A selection formula as a condition of the database's dialect. A formula compares fields and literals
/// with = <> < <= > >=, joined by and, or, not and parentheses:
///
///     {Turnos.Fecha} >= date(2024,3,1) and ({Turnos.Dr} = 'Dra. Paz' or month({Turnos.Fecha}) = 3)
///
/// Fields are {Tabla.campo} or {Tabla.[campo]}; literals are texts in single or double quotes (a quote
/// inside is written twice), numbers with a decimal point, date(year,month,day), #month/day/year#, TRUE and
/// FALSE; month() and year() take a date. Words go in any case. Throws reports::Error with the place of what
/// is not understood: a formula is never half applied. An empty formula selects everything.
QString toDialect(const QString &formula);

/// A text as a literal of a formula, quotes included.
QString literal(const QString &text);
/// A day as a literal of a formula: date(2024,3,15).
QString literal(basic::Date day);
/// The rows whose field lies between the two days, both included: of "Turnos.Fecha",
/// {Turnos.Fecha} >= date(2024,3,1) and {Turnos.Fecha} <= date(2024,3,31).
QString period(const QString &field, basic::Date from, basic::Date to);

} // namespace reports
