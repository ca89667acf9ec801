#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTime>

#include <array>
#include <bitset>
#include <functional>
#include <optional>
#include <vector>

/// The working hours of a professional and the places of the appointment book that they give.
namespace horarios
{

/// Days of the week by number, 1 being Sunday; element 0 is not used.
using Dias = std::bitset<8>;

/// What is to be written for the chosen days of a period.
struct Esquema {
    qint64 idProfesional = 0;
    QString nombre; ///< of the professional
    QDate desde, hasta;
    Dias dias;
    std::array<QTime, 4> horas;   ///< morning from and to, afternoon from and to; midnight counts as not set
    std::optional<int> intervalo; ///< minutes between places; without one no places are made
};

/// Told after each date of the walk, so that a long job shows how far it is.
using Avance = std::function<void(int hechas, int total)>;

/// "09:05", as it is kept in the tables and sorted as a text.
QString texto(QTime hora);

/// The hours at which places start: from `desde` each `intervalo` minutes, strictly before `hasta`. Empty for
/// a period without length or an interval that is not positive.
QStringList lugares(QTime desde, QTime hasta, int intervalo);

/// The dates of the period, both ends included, that fall on one of the days.
std::vector<QDate> fechas(QDate desde, QDate hasta, const Dias &dias);

/// Whether the interval lets the walk over the hours come to an end.
bool intervaloValido(const std::optional<int> &intervalo);

/// Writes working hours and free places. With `reemplazar` everything the professional has in the period goes
/// first, given appointments too; without it only places that nobody has free at that date and hour are
/// added. Throws basic::Error, and before anything is touched when the interval is not valid; what was
/// written before another error stands.
void aplicar(const Esquema &esquema, bool reemplazar, const Avance &avance = {});

/// Removes working hours and all places, given ones too, on the chosen days of the period.
void quitar(const Esquema &esquema, const Avance &avance = {});

} // namespace horarios
