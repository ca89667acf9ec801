#include "clinical/summary/edad.h"

namespace clinical
{

namespace
{

constexpr double diasPorMes = 30.39;
constexpr int mesMasLargo = 31;

} // namespace

Edad edadDe(basic::Date nacimiento, basic::Date hoy)
{
    Edad edad;
    edad.diasDeVida = hoy.wholeDays() - nacimiento.wholeDays();
    edad.mesesDeVida = static_cast<int>(static_cast<double>(edad.diasDeVida) / diasPorMes);
    const int delMes = nacimiento.date().day();
    const QDate ayer = hoy.date().addDays(-1);
    for (QDate dia = nacimiento.date(); dia < ayer;) {
        dia = dia.addDays(1);
        ++edad.dias;
        if (dia.day() == delMes || edad.dias > mesMasLargo) {
            ++edad.meses;
            edad.dias = 0;
        }
        if (edad.meses >= 12) {
            ++edad.anios;
            edad.meses = 0;
            edad.dias = 0;
        }
    }
    return edad;
}

} // namespace clinical
