#include "practice.h"

#include "appointments.h"
#include "bills.h"
#include "births.h"
#include "cashandstock.h"
#include "eyes.h"
#include "hearts.h"
#include "pregnancies.h"
#include "teeth.h"
#include "vaccines.h"
#include "visits.h"

#include "core/session/session.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr int examinationsUnlessAsked = 20000;
constexpr double yearsOfChronicPatient = 16;

/// All patients with the days of their visits, a child's by its age. What does not fit in a life of days goes
/// to the next ones.
std::vector<Patient> plan(const Size &size, int visits, Dice &dice)
{
    std::vector<Patient> patients;
    double all = 0;
    for (int number = 1; number <= size.patients; ++number) {
        const bool chronic = number == 1 && size.chronic > 0;
        Patient &patient =
            patients.emplace_back(invent(number, size.today, chronic ? yearsOfChronicPatient : -1, dice));
        if (chronic) {
            patient.discharge = QDate();
            if (planVisits(patient, size.chronic, size.today, dice) < size.chronic)
                throw std::runtime_error("so many visits of one patient do not fit in its years");
        } else {
            all += usualVisits(static_cast<double>(patient.birth.daysTo(size.today)) / 365.25);
        }
    }
    double before = 0;
    int planned = 0;
    for (Patient &patient : patients) {
        if (!patient.visits.empty())
            continue;
        before += usualVisits(static_cast<double>(patient.birth.daysTo(size.today)) / 365.25);
        const int upToHere = static_cast<int>(std::lround(visits * std::min(1.0, before / all)));
        planned += planVisits(patient, upToHere - planned, size.today, dice);
    }
    if (planned < visits && size.patients > (size.chronic > 0 ? 1 : 0))
        throw std::runtime_error("so many visits do not fit in the patients' lives");
    return patients;
}

/// Says of each visit, in any order, whether it is one of the latest.
class Latest
{
public:
    Latest(const std::vector<Patient> &patients, int count, bool withoutFirst)
    {
        std::vector<qint64> days;
        for (std::size_t i = withoutFirst ? 1 : 0; i < patients.size(); ++i)
            for (const int age : patients[i].visits)
                days.push_back(patients[i].day(age).toJulianDay());
        const auto kept = std::min(days.size(), static_cast<std::size_t>(count));
        if (kept == 0)
            return;
        std::nth_element(days.begin(), days.begin() + static_cast<std::ptrdiff_t>(kept) - 1, days.end(),
                         std::greater());
        earliest_ = QDate::fromJulianDay(days[kept - 1]);
        onEarliest_ =
            std::count(days.begin(), days.begin() + static_cast<std::ptrdiff_t>(kept), days[kept - 1]);
    }
    bool holds(QDate day)
    {
        return !earliest_.isNull() && (day > earliest_ || (day == earliest_ && onEarliest_-- > 0));
    }

private:
    QDate earliest_;
    std::ptrdiff_t onEarliest_ = 0;
};

void addMeasures(dao::Recordset &rows, const Patient &patient, QDate day, const Growth::Measures &measures)
{
    rows.addNew();
    rows[u"Paciente"] = patient.number;
    rows[u"fecha"] = day;
    rows[u"Peso"] = measures.weight;
    rows[u"Talla"] = measures.height;
    rows[u"Pc"] = measures.head;
    rows[u"Lugar de Consulta"] = u"Consultorio"_s;
    rows.update();
}

void addPatients(const std::vector<Patient> &patients, const Size &size, Dice &dice)
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Pacientes"_s);
    dao::Recordset families = BaseDatos.openRecordset(u"Pediatria"_s);
    for (const Patient &patient : patients) {
        addPatient(rows, patient, size.today, dice);
        addFamily(families, patient, dice);
    }
}

struct PlannedVisit {
    const Patient *patient;
    int age; ///< in days
    QDate day() const { return patient->day(age); }
};

/// As a practice enters them: day after day, which is also how their rows lie in the file.
std::vector<PlannedVisit> byDay(const std::vector<Patient> &patients)
{
    std::vector<PlannedVisit> all;
    for (const Patient &patient : patients)
        for (const int age : patient.visits)
            all.push_back({&patient, age});
    std::ranges::stable_sort(all, {}, &PlannedVisit::day);
    return all;
}

void addVisits(const std::vector<Patient> &patients, const Growth &growth, const Size &size, int visits,
               Dice &dice)
{
    VisitBook book;
    dao::Recordset measured = BaseDatos.openRecordset(u"Medidas"_s);
    Latest latest(patients,
                  size.examinations < 0 ? std::min(visits, examinationsUnlessAsked) : size.examinations,
                  size.chronic > 0);
    const qint64 all = visits + size.chronic;
    const qint64 measures = std::min<qint64>(all, size.measures > 0 ? size.measures : all / 2);
    qint64 done = 0;
    for (const PlannedVisit &visit : byDay(patients)) {
        const Patient &patient = *visit.patient;
        const QDate day = visit.day();
        const bool chronic = size.chronic > 0 && patient.number == 1;
        const Growth::Measures taken = growth.at(visit.age, patient.person.boy, patient.channel, dice);
        book.add(patient, visit.age, taken, chronic || latest.holds(day), dice);
        if ((done + 1) * measures / all > done * measures / all) // spread evenly over the visits
            addMeasures(measured, patient, day, taken);
        ++done;
    }
}

std::vector<Client> clients(const std::vector<Patient> &patients, QDate today)
{
    std::vector<Client> all;
    for (const Patient &patient : patients)
        if (patient.discharge.isNull() || patient.discharge > today)
            all.push_back({patient.number, patient.person.full(), patient.birth, patient.coverage});
    return all;
}

} // namespace

void fill(const Size &size)
{
    Dice dice(size.seed);
    const int visits = size.visits > 0 ? size.visits : size.patients * 10;
    const std::vector<Patient> patients = plan(size, visits, dice);
    BaseDatos.beginTrans();
    addDoctors();
    addCoverages();
    addPatients(patients, size, dice);
    const Growth growth(QStringLiteral(REFERENCE_DATA));
    addVisits(patients, growth, size, visits, dice);
    addBirths(patients, growth, dice);
    addPressures();
    addSightTests(patients, dice);
    addHeartPatient(patients);
    addPregnancy(patients, size.today);
    Dice ofVaccines(size.seed); // of their own: what the others throw stays as it is
    addVaccines(patients, size.vaccinated, size.today, ofVaccines);
    Dice ofEyes(size.seed);
    addEyeVisits(patients, size.today, ofEyes);
    addDentalRecords(patients, size.today);
    Dice ofMoney(size.seed);
    addCash(size.today, ofMoney);
    addStock(size.today, ofMoney);
    QStringList names;
    for (const Doctor &doctor : doctors())
        names += doctor.name;
    addAppointments(size.yearOfAppointments ? aYearOfAppointments(size.today) : tenAfternoons(size.today),
                    names, clients(patients, size.today), dice);
    addTariffs();
    addBills(size.today);
    BaseDatos.commitTrans();
}

} // namespace practica
