#pragma once

#include "growth.h"
#include "names.h"

#include "platform/dao/recordset.h"

#include <QDate>

#include <vector>

/// The professionals of the synthetic practice, its coverages and its patients.
namespace practica
{

struct Doctor {
    QString name, speciality;
};
const std::vector<Doctor> &doctors();
void addDoctors();
void addCoverages();

struct Patient {
    int number;
    Person person;
    QDate birth;
    QDate discharge; ///< null for a patient that is still one
    std::size_t doctor;
    QString coverage;
    Growth::Channel channel;
    std::vector<int> visits; ///< ages in days, ascending
    QDate day(int age) const { return birth.addDays(age); }
    /// The doctor that sees the child at this age: the one for newborns hands them on.
    const Doctor &seenBy(int ageInDays) const;
};

/// A patient without visits. An age in years that is not negative is the patient's.
Patient invent(int number, QDate today, double years, Dice &dice);

/// How many visits a child has had by an age: close together in the first year, then ever rarer.
double usualVisits(double years);

/// Gives the patient up to so many visits on different working days until this one, and says how many it got.
int planVisits(Patient &patient, int count, QDate today, Dice &dice);

void addPatient(dao::Recordset &rows, const Patient &patient, QDate today, Dice &dice);
void addFamily(dao::Recordset &rows, const Patient &patient, Dice &dice);

} // namespace practica
