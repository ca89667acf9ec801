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
    int examinations = -1; ///< how many visits, the latest, have theirs; less than 0: 20,000 at most
    int chronic = 0;       ///< visits of the first patient, all examined, beside those of the others
    int vaccinated = 2000; ///< how many patients, the first, have their doses
    unsigned seed = 1;
    QDate today; ///< the practice's last day
};

/// Throws std::runtime_error when the data do not fit the catalogues, or the visits the patients' lives.
void fill(const Size &size);

} // namespace practica
