#include "births.h"

#include "core/services/opcionesPerinatales.h"
#include "core/session/session.h"
#include "paediatrics/perinatal/ficha.h"
#include "paediatrics/sight/agudeza.h"
#include "platform/basic/runtime.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr std::size_t mostBirths = 5000;
constexpr double shareOfBirths = 0.9, shareOfPreterm = 0.08, shareOfSightTests = 0.4;
constexpr int termWeeks = 39;

/// One of a column's options by its word.
basic::Value option(const QString &column, const QString &word)
{
    return QString::number(services::opcionesPerinatales(column).indexOf(word));
}

int weeksOfPregnancy(Dice &dice)
{
    return chance(dice, shareOfPreterm) ? between(dice, 30, 36) : between(dice, 37, 41);
}

void tellMother(perinatal::Valores &values, const Patient &patient, int weeks, Dice &dice)
{
    const int before = between(dice, 46, 82);
    values[u"Nombre de la Madre"_s] =
        MODULE11::BaseDatos
            .openRecordset(
                u"Select [Nombre de la Madre] from Pediatria where numero = %1"_s.arg(patient.number))[0]
            .text();
    values[u"Edad de la Madre al Nacer"_s] = QString::number(between(dice, 17, 41));
    values[u"Peso anterior de la Madre"_s] = QString::number(before);
    values[u"Peso al nacer de la Madre"_s] = QString::number(before + between(dice, 5, 17));
    values[u"Gestas de la Madre"_s] = QString::number(between(dice, 1, 4));
    values[u"Edad Gestacional madre"_s] = u"%1+%2"_s.arg(weeks).arg(between(dice, 0, 6));
    values[u"Grupo sanguineo Madre"_s] = oneOf(dice, {u"0+"_s, u"A+"_s, u"A+"_s, u"B+"_s, u"0-"_s});
    values[u"control Prenatal"_s] = chance(dice, 0.05); // true is without
    values[u"VDRL"_s] = chance(dice, 0.02);
}

void tellDelivery(perinatal::Valores &values, bool preterm, Dice &dice)
{
    const bool caesarean = chance(dice, preterm ? 0.5 : 0.3);
    values[u"Comienzo Parto"_s] = caesarean ? u"Sin trabajo de parto"_s : u"Espontáneo"_s;
    values[u"Presentacion Parto"_s] = chance(dice, 0.04) ? u"Pelviana"_s : u"Cefálica"_s;
    values[u"Terminacion Parto"_s] = caesarean ? u"Cesárea"_s : u"Espontánea"_s;
    values[u"Causa de Intervencion Parto"_s] =
        caesarean ? oneOf(dice, {u"Cesárea anterior"_s, u"Sufrimiento fetal"_s, u"Preeclampsia"_s})
                  : QString();
    values[u"Tipo liquido amniotico"_s] =
        option(u"Tipo liquido amniotico"_s, chance(dice, 0.1) ? u"Meconial"_s : u"Claro"_s);
    values[u"sufrimiento fetal"_s] = option(u"sufrimiento fetal"_s, chance(dice, 0.05) ? u"SI"_s : u"NO"_s);
    values[u"Parto efectuado por"_s] = option(
        u"Parto efectuado por"_s, oneOf(dice, {u"Médico Obstetra"_s, u"Médico Obstetra"_s, u"Partera"_s}));
    values[u"Parto atendido en"_s] = option(u"Parto atendido en"_s, u"Institución ambiente quirurgico"_s);
    values[u"Nacimiento"_s] = option(u"Nacimiento"_s, u"Simple"_s);
}

/// The five signs add up to the totals.
void tellApgar(perinatal::Valores &values, bool preterm, Dice &dice)
{
    for (const auto &[moment, most] :
         {std::pair{u"1 min"_s, preterm ? 0.55 : 0.8}, {u"5 min"_s, preterm ? 0.8 : 0.93}}) {
        int total = 0;
        for (const QString &sign : {u"Latidos"_s, u"Respiracion"_s, u"tono"_s, u"reflejos"_s, u"color"_s}) {
            const int score = chance(dice, most) ? 2 : 1;
            values[u"Apgar %1 %2"_s.arg(sign, moment)] = QString::number(score);
            total += score;
        }
        values[u"Apgar total "_s + moment] = QString::number(total);
    }
}

/// A preterm child weighs a twelfth less for each week that is missing, and is a twenty-fifth shorter.
void tellMeasures(perinatal::Valores &values, Growth::Measures atTerm, int weeks)
{
    const double missing = std::max(0, termWeeks - weeks);
    const double weight = std::round(atTerm.weight * std::pow(11.0 / 12, missing) / 10) * 10;
    const double height = std::round(atTerm.height * std::pow(24.0 / 25, missing) * 2) / 2;
    const double head = std::round(atTerm.head * std::pow(27.0 / 28, missing) * 2) / 2;
    values[u"Peso al Nacer"_s] = basic::Value(weight).text();
    values[u"Talla al Nacer"_s] = basic::Value(height).text();
    values[u"Perimetro cefalico al nacer"_s] = basic::Value(head).text();
    values[u"Edad gestacional por examen fisico"_s] = QString::number(weeks);
}

perinatal::Ficha birth(const Patient &patient, const Growth &growth, Dice &dice)
{
    perinatal::Ficha record;
    const int weeks = weeksOfPregnancy(dice);
    const bool preterm = weeks < 37;
    tellMother(record.perinatal, patient, weeks, dice);
    tellDelivery(record.perinatal, preterm, dice);
    tellApgar(record.perinatal, preterm, dice);
    tellMeasures(record.perinatal, growth.at(0, patient.person.boy, patient.channel, dice), weeks);
    record.perinatal[u"Neurologico normal"_s] = record.perinatal[u"Orino al nacer"_s] = true;
    if (preterm) {
        record.perinatal[u"Presencia de dificultad respiratoria"_s] = chance(dice, 0.4);
        record.perinatal[u"Permanencia en UCI"_s] = u"%1 días"_s.arg(between(dice, 3, 30));
        record.diagnosticos += u"Prematuro"_s;
    } else if (chance(dice, 0.2)) {
        record.perinatal[u"Color de la piel ictericia"_s] = true;
        record.diagnosticos += u"Ictericia neonatal"_s;
    }
    record.pediatria[u"Profilaxis crede"_s] = record.pediatria[u"Profilaxis vitaminak"_s] = true;
    return record;
}

} // namespace

void addBirths(const std::vector<Patient> &patients, const Growth &growth, Dice &dice)
{
    for (std::size_t i = 0; i < std::min(patients.size(), mostBirths); ++i)
        if (chance(dice, shareOfBirths))
            perinatal::guardar(patients[i].number, birth(patients[i], growth, dice));
}

void addPressures()
{
    dao::Recordset written = BaseDatos.openRecordset(u"TomaPresion"_s);
    dao::Recordset found = BaseDatos.openRecordset(
        u"Select idPaciente, Fecha, Valor from ExFisico where Titulo = 'Examen Cardiovascular TA 1' and Valor <> ''"_s,
        dao::Recordset::Kind::Snapshot);
    for (; !found.eof(); found.moveNext()) {
        const QStringList parts = found[u"Valor"].text().split(u'/');
        if (parts.size() < 2)
            continue;
        written.addNew();
        written[u"Paciente"] = found[u"idPaciente"].integer();
        written[u"fecha"] = found[u"Fecha"].date();
        written[u"maxima"] = basic::val(parts[0]);
        written[u"minima"] = basic::val(parts[1]);
        written.update();
    }
}

void addSightTests(const std::vector<Patient> &patients, Dice &dice)
{
    constexpr int fiveYears = 5 * 365, year = 365;
    dao::Recordset written = BaseDatos.openRecordset(u"Visual"_s);
    for (const Patient &patient : patients) {
        if (!chance(dice, shareOfSightTests))
            continue;
        int next = fiveYears;
        for (const int age : patient.visits) {
            if (age < next)
                continue;
            next = age + year;
            const int tenths = between(dice, 6, 10);
            const auto eye = [&] { return u"%1/10"_s.arg(std::clamp(tenths + between(dice, -1, 1), 1, 10)); };
            written.addNew();
            written[u"Paciente"] = patient.number;
            agudeza::escribir(written, {basic::Date(patient.day(age)), {eye(), eye(), eye(), eye()}, {}});
            written.update();
        }
    }
}

} // namespace practica
