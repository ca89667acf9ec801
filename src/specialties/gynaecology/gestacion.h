#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

/// The arithmetic of a pregnancy. What it finds is shown beside what was written and never kept.
namespace gestacion
{

/// Days from the last period to a day; nothing before it, or beyond 44 weeks.
std::optional<int> diasPorFum(QDate ultimaMenstruacion, QDate dia);
/// The same from an ultrasound that found so many weeks and days.
std::optional<int> diasPorEco(QDate eco, int semanas, int dias, QDate dia);
/// "12 semanas y 3 días".
QString enPalabras(int dias);

/// Naegele's rule: seven days more, three months less, a year more.
QDate parto(QDate ultimaMenstruacion);
/// Forty weeks, counted from what the ultrasound found.
QDate partoPorEco(QDate eco, int semanas, int dias);

/// What a control visit says of the pregnancy's course; what is not written as a number is not there.
struct Control {
    double semana;
    std::optional<double> altura, peso, maxima, minima;
};

/// The figures of a visit as they were written: "20+3", "28 cm", "110/70". Nothing without a week of its own,
/// written or counted from the last period.
std::optional<Control> control(const QString &ig, const QString &au, const QString &peso,
                               const QString &presion, QDate fecha, QDate ultimaMenstruacion);

} // namespace gestacion
