#include "patients.h"

#include "core/session/session.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr double daysOfYear = 365.25;
constexpr int firstVisitDay = 3; // once out of the maternity
constexpr int lastDayAsNewborn = 730;

/// The age by which a child has had so many visits.
double yearsOfVisit(double visits)
{
    return visits < 12 ? visits / 12 : visits < 37 ? 1 + (visits - 12) / 5 : 6 + (visits - 37) / 2.5;
}

} // namespace

const std::vector<Doctor> &doctors()
{
    static const std::vector<Doctor> all = {{u"Dra. Marina Ibarra"_s, u"Pediatría"_s},
                                            {u"Dr. Hernán Castillo"_s, u"Pediatría"_s},
                                            {u"Dra. Lucía Ferrari"_s, u"Neonatología"_s}};
    return all;
}

void addDoctors()
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Profesionales"_s);
    for (const Doctor &doctor : doctors()) {
        rows.addNew();
        rows[u"Nombre"] = doctor.name;
        rows[u"Especialidad"] = doctor.speciality;
        rows[u"TipoPermiso"] = u"T"_s;
        rows[u"interturnos"] = 15;
        rows.update();
    }
}

void addCoverages()
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Obra Social"_s);
    int price = 6000;
    for (const QString &name : coverages()) {
        rows.addNew();
        rows[u"Descripcion"] = name;
        rows[u"Observaciones"] = u"-"_s;
        rows[u"Precio Consulta"] = basic::Currency::fromDouble(price += 750);
        rows.update();
    }
}

const Doctor &Patient::seenBy(int ageInDays) const
{
    const Doctor &own = doctors()[doctor];
    return own.speciality == u"Neonatología" && ageInDays > lastDayAsNewborn ? doctors().front() : own;
}

Patient invent(int number, QDate today, double years, Dice &dice)
{
    // A paediatric practice has more infants than adolescents.
    while (years < 0 || years >= 18)
        years = std::exponential_distribution<double>(1.0 / 5)(dice);
    Patient patient{number,
                    person(dice),
                    today.addDays(-static_cast<int>(years * daysOfYear)),
                    {},
                    static_cast<std::size_t>(between(dice, 0, static_cast<int>(doctors().size()) - 1)),
                    chance(dice, 0.8) ? oneOf(dice, coverages()) : QString(),
                    Growth::channel(dice),
                    {}};
    if (chance(dice, 0.03))
        patient.discharge = patient.birth.addDays(between(dice, 200, 3000));
    return patient;
}

double usualVisits(double years)
{
    return years < 1 ? 12 * years : years < 6 ? 12 + 5 * (years - 1) : 37 + 2.5 * (years - 6);
}

int planVisits(Patient &patient, int count, QDate today, Dice &dice)
{
    const QDate end = patient.discharge.isNull() ? today : std::min(today, patient.discharge);
    const auto lastAge = static_cast<double>(patient.birth.daysTo(end));
    std::uniform_real_distribution<double> visit(0, usualVisits(lastAge / daysOfYear));
    std::set<int> ages;
    for (int attempts = 20 * count; attempts > 0 && static_cast<int>(ages.size()) < count; --attempts) {
        const int age = static_cast<int>(yearsOfVisit(visit(dice)) * daysOfYear);
        if (age >= firstVisitDay && patient.day(age).dayOfWeek() != Qt::Sunday)
            ages.insert(age);
    }
    patient.visits.assign(ages.begin(), ages.end());
    return static_cast<int>(ages.size());
}

void addPatient(dao::Recordset &rows, const Patient &patient, QDate today, Dice &dice)
{
    const Address home = address(dice);
    const Doctor &doctor = patient.seenBy(static_cast<int>(patient.birth.daysTo(today)));
    const auto key = std::find_if(doctors().begin(), doctors().end(),
                                  [&](const Doctor &each) { return each.name == doctor.name; }) -
                     doctors().begin() + 1;
    rows.addNew();
    rows[u"Numero"] = patient.number;
    rows[u"Apellido y Nombres"] = patient.person.full();
    rows[u"Fecha de Nacimiento"] = patient.birth;
    rows[u"Documento"] = QString::number(between(dice, 45000000, 59999999));
    rows[u"Sexo"] = patient.person.boy ? u"Varon"_s : u"Mujer"_s;
    rows[u"Grupo Sanguineo"] =
        oneOf(dice, {u"0+"_s, u"0+"_s, u"A+"_s, u"A+"_s, u"B+"_s, u"AB+"_s, u"0-"_s, u"A-"_s});
    rows[u"Obra Social"] = patient.coverage;
    rows[u"Numero de Afiliado"] =
        patient.coverage.isEmpty() ? QString() : QString::number(between(dice, 100000, 999999));
    rows[u"Situacion Conyugal"] = u"Soltero/a"_s;
    rows[u"Historia Clinica"] = u"-"_s;
    rows[u"Domicilio"] = home.street;
    rows[u"Barrio"] = home.quarter;
    rows[u"Localidad"] = home.town;
    rows[u"CodigoPostal"] = home.postcode;
    rows[u"Provincia"] = u"Buenos Aires"_s;
    rows[u"Pais"] = u"Argentina"_s;
    rows[u"Telefono"] = u"11 %1-%2"_s.arg(between(dice, 2000, 6999)).arg(between(dice, 1000, 9999));
    rows[u"IdProfesional"] = chance(dice, 0.2) ? 0 : static_cast<int>(key);
    if (!patient.discharge.isNull())
        rows[u"FechaBaja"] = patient.discharge;
    if (!patient.visits.empty())
        rows[u"Ultima fecha visita"] = patient.day(patient.visits.back());
    rows.update();
}

void addFamily(dao::Recordset &rows, const Patient &patient, Dice &dice)
{
    rows.addNew();
    rows[u"Numero"] = patient.number;
    rows[u"Nombre de la Madre"] = surname(dice) + u' ' + firstName(dice, false);
    rows[u"Nombre del padre"] = patient.person.surname + u' ' + firstName(dice, true);
    rows[u"Fecha Nacim Madre"] = patient.birth.addDays(-between(dice, 7000, 15000));
    rows[u"Fecha Nacim Padre"] = patient.birth.addDays(-between(dice, 7000, 17000));
    rows.update();
}

} // namespace practica
