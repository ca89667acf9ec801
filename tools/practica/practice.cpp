#include "practice.h"

#include "appointments.h"
#include "growth.h"
#include "names.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

struct Doctor {
    const char *name, *speciality;
};
constexpr std::array<Doctor, 3> doctors = {{{"Dra. Marina Ibarra", "Pediatría"},
                                            {"Dr. Hernán Castillo", "Pediatría"},
                                            {"Dra. Lucía Ferrari", "Neonatología"}}};

QStringList doctorNames()
{
    QStringList names;
    for (const Doctor &doctor : doctors)
        names += QString::fromUtf8(doctor.name);
    return names;
}

/// The names of a catalogue.
QStringList catalogue(const QString &table)
{
    QStringList names;
    dao::Recordset rows = BaseDatos.openRecordset(u"Select Descripcion from %1"_s.arg(table));
    for (; !rows.eof(); rows.moveNext())
        names += rows[0].text();
    return names;
}

struct Catalogues {
    QStringList symptoms = catalogue(u"Sintomas"_s);
    QStringList diagnoses = catalogue(u"DIAGPERSONALES"_s);
    QStringList treatments = catalogue(u"Tratamientos"_s);
};

struct Patient {
    int number;
    Person person;
    QDate birth;
    int doctor;
    QString coverage;
    Growth::Channel channel;
};

void addDoctors()
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Profesionales"_s);
    for (std::size_t i = 0; i < doctors.size(); ++i) {
        rows.addNew();
        rows[u"Nombre"] = doctors[i].name;
        rows[u"Especialidad"] = doctors[i].speciality;
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

Patient invent(int number, const Size &size, Dice &dice)
{
    // A paediatric practice has more infants than adolescents.
    const double age = std::min(std::exponential_distribution<double>(1.0 / 5)(dice), 17.9);
    const int days = static_cast<int>(age * 365.25);
    return {number,
            person(dice),
            size.today.addDays(-days),
            between(dice, 0, static_cast<int>(doctors.size()) - 1),
            chance(dice, 0.8) ? oneOf(dice, coverages()) : QString(),
            Growth::channel(dice)};
}

void addPatient(dao::Recordset &rows, const Patient &patient, Dice &dice)
{
    const Address home = address(dice);
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
    rows[u"IdProfesional"] = chance(dice, 0.2) ? 0 : patient.doctor + 1;
    if (chance(dice, 0.03))
        rows[u"FechaBaja"] = patient.birth.addDays(between(dice, 200, 3000));
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

/// Names of a catalogue into the first slots of a repeating group.
void putSlots(dao::Recordset &rows, const QString &group, const QStringList &names, int filled, Dice &dice)
{
    for (int i = 1; i <= filled; ++i)
        rows[group + QString::number(i)] = oneOf(dice, names);
}

void addVisit(dao::Recordset &rows, const Patient &patient, QDate day, const Growth::Measures &measures,
              const Catalogues &lists, Dice &dice)
{
    rows.addNew();
    rows[u"paciente"] = patient.number;
    rows[u"nombre del paciente"] = patient.person.full();
    rows[u"Fecha"] = day;
    rows[u"Hora"] = basic::Date(QTime(between(dice, 8, 18), 15 * between(dice, 0, 3)));
    rows[u"Lugar de Consulta"] = chance(dice, 0.95) ? u"Consultorio"_s : u"Domicilio"_s;
    rows[u"Tipo"] = u"Ulterior"_s;
    rows[u"Motivo"] = oneOf(dice, lists.symptoms);
    rows[u"Peso"] = measures.weight;
    rows[u"Talla"] = measures.height;
    rows[u"Perimetro cefalico"] = 0;
    rows[u"Edad"] = static_cast<int>(patient.birth.daysTo(day));
    rows[u"Sexo"] = patient.person.boy ? u"Varon"_s : u"Mujer"_s;
    rows[u"Mutual"] = patient.coverage;
    rows[u"Dr"] = doctors[static_cast<std::size_t>(patient.doctor)].name;
    rows[u"Monto"] = basic::Currency::fromDouble(patient.coverage.isEmpty() ? 9000 : 7500);
    rows[u"EspecialidadPLUS"] = u"Pediatría"_s;
    putSlots(rows, u"sintoma "_s, lists.symptoms, between(dice, 1, 3), dice);
    putSlots(rows, u"Diagnostico "_s, lists.diagnoses, between(dice, 1, 2), dice);
    putSlots(rows, u"Tratamiento "_s, lists.treatments, between(dice, 0, 2), dice);
    rows.update();
}

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

/// The ages of a child's visits: close together in the first year, then ever rarer.
std::vector<int> visitDays(int ageInDays, int count, Dice &dice)
{
    std::vector<int> days;
    for (int i = 0; i < count; ++i) {
        const double share = std::uniform_real_distribution<double>(0, 1)(dice);
        days.push_back(static_cast<int>(share * share * ageInDays));
    }
    std::sort(days.begin(), days.end());
    return days;
}

struct Tables {
    dao::Recordset patients = BaseDatos.openRecordset(u"Pacientes"_s);
    dao::Recordset families = BaseDatos.openRecordset(u"Pediatria"_s);
    dao::Recordset visits = BaseDatos.openRecordset(u"Consulta"_s);
    dao::Recordset measures = BaseDatos.openRecordset(u"Medidas"_s);
};

/// How many of `total` fall to the i-th of `shares`, so that all add up.
int share(int total, int shares, int i)
{
    return static_cast<int>(static_cast<qint64>(total) * (i + 1) / shares -
                            static_cast<qint64>(total) * i / shares);
}

} // namespace

void fill(const Size &size)
{
    Dice dice(size.seed);
    const Growth growth(QStringLiteral(REFERENCE_DATA));
    BaseDatos.beginTrans();
    addDoctors();
    addCoverages();
    const Catalogues lists;
    const int visits = size.visits > 0 ? size.visits : size.patients * 10;
    const int measures = std::min(visits, size.measures > 0 ? size.measures : visits / 2);
    std::vector<Patient> patients;
    {
        Tables tables;
        for (int i = 0; i < size.patients; ++i) {
            const Patient &patient = patients.emplace_back(invent(i + 1, size, dice));
            addPatient(tables.patients, patient, dice);
            addFamily(tables.families, patient, dice);
            int measuresLeft = share(measures, size.patients, i);
            const int age = static_cast<int>(patient.birth.daysTo(size.today));
            for (const int days : visitDays(age, share(visits, size.patients, i), dice)) {
                const Growth::Measures taken = growth.at(days, patient.person.boy, patient.channel, dice);
                addVisit(tables.visits, patient, patient.birth.addDays(days), taken, lists, dice);
                if (measuresLeft-- > 0)
                    addMeasures(tables.measures, patient, patient.birth.addDays(days), taken);
            }
        }
    }
    std::vector<Client> clients;
    for (const Patient &patient : patients)
        clients.push_back({patient.number, patient.person.full(), patient.birth, patient.coverage});
    addAppointments(size.yearOfAppointments ? aYearOfAppointments(size.today) : tenAfternoons(size.today),
                    doctorNames(), clients, dice);
    BaseDatos.commitTrans();
}

} // namespace practica
