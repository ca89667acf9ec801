#include "appointments.h"

#include "core/session/session.h"
#include "platform/dao/recordset.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr int quarter = 15 * 60; // seconds

struct Place {
    QDate date;
    QTime hour;
    int doctor;
    QString doctorName;
};

double shareTaken(const Book &book, QDate date)
{
    return date < book.today ? book.takenBefore : date == book.today ? book.takenToday : book.takenAfter;
}

void putClient(dao::Recordset &rows, const Client &client, bool past, Dice &dice)
{
    rows[u"Paciente"] = client.name.left(50);
    rows[u"idPaciente"] = client.number;
    rows[u"Estado"] = past && chance(dice, 0.1) ? u"Ausente"_s : u"En curso"_s;
    rows[u"Mutual"] = client.coverage.isEmpty() ? u"<Particular>"_s : client.coverage;
    rows[u"idMutual"] = static_cast<int>(coverages().indexOf(client.coverage)) + 1; // 0 for none
    rows[u"Telefono"] = u"11 %1-%2"_s.arg(between(dice, 2000, 6999)).arg(between(dice, 1000, 9999));
    rows[u"Motivo"] = oneOf(dice, {u"Control Sano"_s, u"Fiebre"_s, u"Tos"_s, u"Vacunas"_s, u"."_s});
    rows[u"Coseguro"] = u"."_s;
    rows[u"Observaciones"] = u"."_s;
}

void addPlace(dao::Recordset &rows, const Place &place, const Client *client, bool past, Dice &dice)
{
    rows.addNew();
    rows[u"Fecha"] = place.date;
    rows[u"Hora"] = place.hour.toString(u"HH:mm");
    rows[u"Dr"] = place.doctorName;
    rows[u"idProfesional"] = place.doctor;
    rows[u"Paciente"] = u"<Sin Asignar>"_s;
    rows[u"idPaciente"] = 0;
    rows[u"Mutual"] = QString();
    rows[u"idMutual"] = 0;
    if (client)
        putClient(rows, *client, past, dice);
    rows.update();
}

void addHours(dao::Recordset &rows, const Book &book, QDate date, int doctor)
{
    rows.addNew();
    rows[u"idProfesional"] = doctor;
    rows[u"Fecha"] = date;
    int period = 0;
    for (const Book::Stretch &stretch : book.stretches) {
        const QString number = QString::number(++period);
        rows[u"desde"_s + number] = stretch.from.toString(u"HH:mm");
        rows[u"hasta"_s + number] = stretch.from.addSecs(stretch.places * quarter).toString(u"HH:mm");
    }
    rows.update();
}

} // namespace

Book tenAfternoons(QDate today)
{
    return {today, today.addDays(9), today, 5, {{QTime(14, 0), 16}}, 0, 0.7, 0.4};
}

Book aYearOfAppointments(QDate today)
{
    return {today.addMonths(-8),
            today.addMonths(4).addDays(-1),
            today,
            6,
            {{QTime(7, 0), 32}, {QTime(15, 0), 32}},
            0.92,
            0.85,
            0.17};
}

void addAppointments(const Book &book, const QStringList &doctors, const std::vector<Client> &clients,
                     Dice &dice)
{
    dao::Recordset places = BaseDatos.openRecordset(u"Turnos"_s);
    dao::Recordset hours = BaseDatos.openRecordset(u"DisTurnos"_s);
    for (QDate date = book.first; date <= book.last; date = date.addDays(1)) {
        if (date.dayOfWeek() > book.lastWeekday)
            continue;
        for (int doctor = 1; doctor <= doctors.size(); ++doctor) {

            addHours(hours, book, date, doctor);
            for (const Book::Stretch &stretch : book.stretches)
                for (int i = 0; i < stretch.places; ++i) {
                    const bool taken = !clients.empty() && chance(dice, shareTaken(book, date));
                    const Client *client = taken ? &clients[static_cast<std::size_t>(between(
                                                       dice, 0, static_cast<int>(clients.size()) - 1))]
                                                 : nullptr;
                    addPlace(places, {date, stretch.from.addSecs(i * quarter), doctor, doctors[doctor - 1]},
                             client, date < book.today, dice);
                }
        }
    }
}

} // namespace practica
