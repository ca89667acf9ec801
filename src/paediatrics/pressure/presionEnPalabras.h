#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <optional>

/// Blood pressure.
namespace presion
{

enum class Cual { Minima, Maxima };

/// One measuring.
struct Toma {
    basic::Date fecha;
    double minima, maxima;
    double valor(Cual cual) const { return cual == Cual::Maxima ? maxima : minima; }
};

/// Where a pressure stands among children of the age, sex and height, by the report of the National High
/// Blood Pressure Education Program of 2004, from one to seventeen years: its z-score. `letra` is "V" or "M";
/// a height of 0 deviations is the median. Nothing outside those ages.
std::optional<double> puntajeZ(Cual cual, QChar letra, double anios, double zDeTalla, double valor);
/// The pressure that stands at a z-score.
std::optional<double> valorEn(Cual cual, QChar letra, double anios, double zDeTalla, double z);

/// "P85, z +1,0, normal para talla P30"; without a height "para talla mediana". Outside of the ages it says
/// that there is no reference.
QString enPalabras(Cual cual, QChar letra, double anios, std::optional<double> zDeTalla, double valor);

/// How tall the child is for its age, by the last height that was taken up to a day; nothing without one.
std::optional<double> zDeTalla(qint64 paciente, const QString &sexo, basic::Date nacimiento, basic::Date dia);

/// One of the two pressures of a measuring with its place: "Máxima 121: P95, z +1,6, alta para talla P85".
/// There is no reference for a sex other than "V..." and "M...", nor without a date of birth.
QString enPalabras(Cual cual, qint64 paciente, const QString &sexo,
                   const std::optional<basic::Date> &nacimiento, const Toma &toma);

} // namespace presion
