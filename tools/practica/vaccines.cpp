#include "vaccines.h"

#include "core/session/session.h"
#include "paediatrics/vaccines/edades.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr int latestDelay = 20; ///< days after the recommended age

struct Scheduled {
    vacunas::DosisDelPlan dose;
    vacunas::EdadDeDosis age;
};

std::vector<Scheduled> schedule()
{
    const vacunas::Edades ages;
    std::vector<Scheduled> all;
    for (const vacunas::DosisDelPlan &dose : vacunas::plan())
        all.push_back({dose, ages.de(dose)});
    std::ranges::stable_sort(all, {}, [](const Scheduled &one) { return one.age.recomendada; });
    return all;
}

/// Until which day the patient came for vaccines; null for one that never did.
QDate lastDay(const Patient &patient, QDate today, Dice &dice)
{
    const QDate end = patient.discharge.isNull() ? today : std::min(today, patient.discharge);
    switch (patient.number % 10) {
    case 0:
        return {};
    case 1:
    case 2:
    case 3:
        return patient.birth.addDays(between(dice, 0, static_cast<int>(patient.birth.daysTo(end)) / 2));
    default:
        return end;
    }
}

void note(dao::Recordset &rows, const Patient &patient, QDate day, const vacunas::DosisDelPlan &dose,
          const QString &remark)
{
    rows.addNew();
    rows[u"Paciente"] = patient.number;
    rows[u"fecha"] = day;
    rows[u"Vacuna"] = dose.vacuna;
    rows[u"Dosis"] = dose.dosis;
    rows[u"observaciones"] = remark;
    rows.update();
}

void addDoses(dao::Recordset &rows, const Patient &patient, const std::vector<Scheduled> &schedule,
              QDate today, Dice &dice)
{
    const QDate last = lastDay(patient, today, dice);
    if (last.isNull())
        return;
    bool indicated = patient.discharge.isValid(); // who has left is told no more
    for (const Scheduled &scheduled : schedule) {
        const QDate due = patient.birth.addDays(scheduled.age.recomendada);
        if (due > today || !scheduled.age.corresponde(basic::Date(patient.birth)))
            continue;
        if (due <= last) {
            note(rows, patient, std::min(last, due.addDays(between(dice, 0, latestDelay))), scheduled.dose,
                 u"-"_s);
        } else if (!indicated) {
            note(rows, patient, std::max(due, today.addDays(-30)), scheduled.dose,
                 vacunas::indicada.toString());
            indicated = true;
        }
    }
}

} // namespace

void addVaccines(const std::vector<Patient> &patients, int vaccinated, QDate today, Dice &dice)
{
    const std::vector<Scheduled> plan = schedule();
    dao::Recordset rows = BaseDatos.openRecordset(u"Vacunas"_s);
    for (const Patient &patient : patients)
        if (vaccinated-- > 0)
            addDoses(rows, patient, plan, today, dice);
}

} // namespace practica
