#include "eyes.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "specialties/eye/refraccion.h"
#include "specialties/eye/visita.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace practica
{

namespace
{

constexpr std::size_t mostPatients = 300;
constexpr double shareWithEyeVisits = 0.2;
constexpr int fiveYears = 5 * 365, twoYears = 2 * 365;
constexpr int afterTheOtherVisit = 9; // days

/// One eye's, in quarters of a dioptre.
struct Eye {
    int sphere, cylinder, axis, pressure;
};

QString refractionOf(const Eye &eye)
{
    return oftalmo::enPalabras({eye.sphere / 4.0, eye.cylinder / 4.0, eye.axis});
}

/// The more it is out of focus, the less it sees.
QString acuityOf(const Eye &eye)
{
    const int quarters = std::abs(eye.sphere) - eye.cylinder;
    return u"%1/10"_s.arg(std::clamp(10 - quarters, 1, 10));
}

Eye invented(Dice &dice)
{
    return {between(dice, -6, 4), -between(dice, 1, 4), 5 * between(dice, 1, 36), between(dice, 11, 19)};
}

records::Valores visitOf(const Patient &patient, const std::array<Eye, 2> &eyes, Dice &dice)
{
    records::Valores visit = oftalmo::visitaNueva(patient.number);
    visit[u"motivo"_s] = oneOf(
        dice, {u"Control de la vista"_s, u"Cefalea al leer"_s, u"No ve el pizarrón"_s, u"Control anual"_s});
    const bool shortSighted = eyes[0].sphere + eyes[0].cylinder / 2 < 0;
    visit[u"diagnostico"_s] = shortSighted ? u"Miopía"_s : u"Hipermetropía"_s;
    visit[u"refraccion_OD"_s] = visit[u"antreclejOD"_s] = refractionOf(eyes[0]);
    visit[u"refraccion_OI"_s] = visit[u"antreclejOi"_s] = refractionOf(eyes[1]);
    visit[u"aguVisOdSC"_s] = acuityOf(eyes[0]);
    visit[u"aguVisOiSC"_s] = acuityOf(eyes[1]);
    visit[u"aguVisOdCCC"_s] = u"10/10"_s;
    visit[u"aguVisOiCCC"_s] = chance(dice, 0.2) ? u"9/10"_s : u"10/10"_s;
    visit[u"tensionocuod"_s] = QString::number(eyes[0].pressure + between(dice, -1, 1));
    visit[u"tensionocuoi"_s] = QString::number(eyes[1].pressure + between(dice, -1, 1));
    visit[u"biomicroscopia"_s] = u"Segmento anterior sin particularidades"_s;
    visit[u"fondodeojo"_s] = u"Papila de bordes netos, mácula con brillo"_s;
    visit[u"Lectura"_s] = chance(dice, 0.1) ? u"Alterada"_s : u"Normal"_s;
    visit[u"r_p"_s] = u"Anteojos de uso permanente"_s;
    return visit;
}

} // namespace

void addEyeVisits(const std::vector<Patient> &patients, const QDate &today, Dice &dice)
{
    const QString doctor = MODULE11::DrActual;
    for (const Patient &patient : patients) {
        if (static_cast<std::size_t>(patient.number) > mostPatients)
            break;
        if (patient.number == 1 || !chance(dice, shareWithEyeVisits))
            continue;
        std::array<Eye, 2> eyes = {invented(dice), invented(dice)};
        int next = fiveYears;
        for (const int age : patient.visits) {
            const QDate day = patient.day(age + afterTheOtherVisit);
            if (age < next || day > today)
                continue;
            next = age + twoYears;
            MODULE11::DrActual = patient.seenBy(age).name;
            const int hour = between(dice, 15, 19);
            basic::setClock(QDateTime(day, QTime(hour, 10 * between(dice, 0, 5))));
            oftalmo::guardarVisita(patient.number, 0, {visitOf(patient, eyes, dice)});
            for (Eye &eye : eyes)
                eye.sphere -= between(dice, 0, 2);
        }
    }
    MODULE11::DrActual = doctor;
    basic::setClock({});
}

} // namespace practica
