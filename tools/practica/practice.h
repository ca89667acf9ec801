#pragma once

#include <QDate>

/// Fills the open database with a practice that could be real.
namespace practica
{

struct Size {
    int patients = 200;
    int visits = 0;                  ///< 0: ten a patient
    int measures = 0;                ///< 0: one in each second visit; never more than one a visit
    bool yearOfAppointments = false; ///< a full book around today instead of the next ten days'
    unsigned seed = 1;
    QDate today; ///< the practice's last day
};

void fill(const Size &size);

} // namespace practica
