#include "answers.h"
#include "delivered.h"

#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "core/windows/Vademecum.h"
#include "core/windows/panInicial.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/colour.h"
#include "practice/appointments/herramientaHorarios.h"
#include "practice/appointments/horarios.h"
#include "practice/appointments/turnos.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

const QDate monday(2024, 3, 18);

turnos::Reserva booking(const QString &patient, qint64 number)
{
    turnos::Reserva booking;
    booking.paciente = patient;
    booking.idPaciente = number;
    booking.dr = u"Dra. Uno"_s;
    booking.idProfesional = 1;
    return booking;
}

/// Another workstation: a process of its own gives the day's first free place to a patient.
bool bookFromAnotherStation(const QString &path, const QString &patient, qint64 number)
{
    const pid_t station = fork();
    if (station == 0) {
        int result = 1;
        try {
            dao::Database own;
            own.open(path, false, false, MODULE11::conexionDeLaBase());
            dao::Recordset place =
                own.openRecordset(u"Select * from Turnos where Paciente = '<Sin Asignar>' order by Hora"_s);
            turnos::ocupar(place, booking(patient, number));
            own.close();
            result = 0;
        } catch (const std::exception &) {
        }
        _exit(result);
    }
    int status = 1;
    waitpid(station, &status, 0);
    return status == 0;
}

class AppointmentBook : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"INSERT INTO Profesionales (idProfesional, Nombre) VALUES (1, 'Dra. Uno')",
             "INSERT INTO Profesionales (idProfesional, Nombre) VALUES (2, 'Dr. Dos')"});
    }

    static horarios::Esquema mornings(QDate from, QDate to, int interval)
    {
        horarios::Esquema scheme{1, u"Dra. Uno"_s, from, to, {}, {QTime(9, 0), QTime(10, 0)}, interval};
        scheme.dias.set(2); // Mondays
        return scheme;
    }
};

} // namespace

TEST(Places, startStrictlyBeforeTheEndAndMayOverrunIt)
{
    EXPECT_EQ(horarios::lugares(QTime(9, 0), QTime(10, 0), 30), (QStringList{"09:00", "09:30"}));
    EXPECT_EQ(horarios::lugares(QTime(9, 0), QTime(10, 0), 25), (QStringList{"09:00", "09:25", "09:50"}));
    EXPECT_EQ(horarios::lugares(QTime(23, 40), QTime(23, 59), 15), (QStringList{"23:40", "23:55"}));
    EXPECT_TRUE(horarios::lugares(QTime(9, 0), QTime(9, 0), 30).isEmpty());
    EXPECT_TRUE(horarios::lugares(QTime(10, 0), QTime(9, 0), 30).isEmpty());
    EXPECT_TRUE(horarios::lugares(QTime(9, 0), QTime(10, 0), 0).isEmpty());
}

TEST(Places, walkTakesBothEndsAndTheChosenWeekdaysOnly)
{
    horarios::Dias days;
    days.set(1).set(2); // Sunday and Monday
    EXPECT_EQ(horarios::fechas(QDate(2024, 2, 26), QDate(2024, 3, 4), days),
              (std::vector{QDate(2024, 2, 26), QDate(2024, 3, 3), QDate(2024, 3, 4)}));
    EXPECT_TRUE(horarios::fechas(monday, monday.addDays(-7), days).empty());
}

TEST(Age, isTheCalendars)
{
    const auto text = [](QDate birth, QDate today) {
        return turnos::textoDeEdad(turnos::edad(birth, today));
    };
    EXPECT_EQ(text({2021, 12, 20}, {2024, 3, 15}), u"02 A 02 M 24 D ");
    EXPECT_EQ(text({2024, 1, 31}, {2024, 2, 29}),
              u"00 A 01 M 00 D "); // no 31st: the month ends with its last day
    EXPECT_EQ(text({2020, 2, 29}, {2024, 2, 28}), u"03 A 11 M 30 D ");
    EXPECT_EQ(text({2024, 3, 16}, {2024, 3, 15}), u"00 A 00 M 00 D ");
    EXPECT_EQ(text({}, {2024, 3, 15}), u"00 A 00 M 00 D ");
}

TEST_F(AppointmentBook, schemeWritesHoursAndPlacesAndLeavesUnsetHoursOut)
{
    int steps = 0;
    horarios::aplicar(mornings(monday, monday.addDays(8), 30), false, [&](int done, int total) {
        EXPECT_EQ(done, ++steps);
        EXPECT_EQ(total, 2);
    });
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(column(u"Select Hora from Turnos order by Fecha, Hora"_s),
              (QStringList{"09:00", "09:30", "09:00", "09:30"}));
    EXPECT_EQ(one(u"Select Dr + Paciente from Turnos"_s), u"Dra. Uno<Sin Asignar>");
    EXPECT_EQ(one(u"Select desde1 + hasta1 from DisTurnos"_s), u"09:0010:00");
    EXPECT_EQ(one(u"Select desde2 from DisTurnos"_s), u"<Null>");

    // A day without length still counts as a day on which the professional attends.
    auto empty = mornings(monday, monday, 30);
    empty.horas[1] = empty.horas[0];
    empty.idProfesional = 2;
    horarios::aplicar(empty, false);
    EXPECT_TRUE(turnos::atiende(2, basic::Date(monday)));
    EXPECT_EQ(one(u"Select count(*) from Turnos where idProfesional = 2"_s), u"0");
}

TEST_F(AppointmentBook, placesAreDoubledOnlyBesideTakenOnes)
{
    const auto scheme = mornings(monday, monday, 30);
    horarios::aplicar(scheme, false);
    horarios::aplicar(scheme, false);
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"2");

    // A free row of anybody at that hour is enough.
    auto other = scheme;
    other.idProfesional = 2;
    horarios::aplicar(other, false);
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"2");

    {
        dao::Recordset place = BaseDatos.openRecordset(u"Select * from Turnos where Hora = '09:00'"_s);
        turnos::ocupar(place, booking(QString(80, u'x'), 5));
    }
    EXPECT_EQ(one(u"Select Paciente from Turnos where idPaciente = 5"_s).size(), 50);
    horarios::aplicar(scheme, false);
    EXPECT_EQ(one(u"Select count(*) from Turnos where Hora = '09:00'"_s), u"2");

    // A replacing run takes the given appointment away, and only inside the period.
    BaseDatos.execute(
        u"INSERT INTO Turnos (Fecha, Hora, idProfesional) VALUES (cdate('19/03/2024'), '09:00', 1)"_s);
    horarios::aplicar(scheme, true);
    EXPECT_EQ(one(u"Select count(*) from Turnos where idPaciente = 5"_s), u"0");
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"3");

    auto everyDay = mornings(monday, monday.addDays(1), 30);
    everyDay.dias.set();
    horarios::quitar(everyDay);
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"0");
    EXPECT_EQ(column(u"Select idProfesional from DisTurnos"_s), QStringList{"2"});
}

TEST_F(AppointmentBook, badIntervalTouchesNothingAndAFailureKeepsWhatWasWritten)
{
    auto scheme = mornings(monday, monday.addDays(30), 30);
    horarios::aplicar(scheme, false);
    const QString places = one(u"Select count(*) from Turnos"_s);
    for (const int interval : {0, -15}) {
        scheme.intervalo = interval;
        EXPECT_THROW(horarios::aplicar(scheme, true), basic::Error);
    }
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), places);

    scheme.intervalo = 30;
    EXPECT_THROW(horarios::aplicar(scheme, true,
                                   [](int done, int) {
                                       if (done == 2)
                                           throw basic::Error(1, u"se corta"_s);
                                   }),
                 basic::Error);
    dao::Database other;
    other.open(BaseDatos.path(), false, false, MODULE11::conexionDeLaBase());
    EXPECT_EQ(other.openRecordset(u"Select count(*) from Turnos"_s)[0].integer(), 4);
}

namespace
{

template <class Control>
Control *in(QWidget &tool, const char *name)
{
    return tool.findChild<Control *>(QString::fromLatin1(name));
}

} // namespace

TEST_F(AppointmentBook, toolAsksBeforeItWritesAndResetsItsDays)
{
    forms::TextBox interval(u"Text2"_s);
    interval.setText(u"25"_s);
    practice::HerramientaHorarios tool(interval);
    int changed = 0;
    QObject::connect(&tool, &practice::HerramientaHorarios::cambiado, &tool, [&] { ++changed; });
    const auto press = [&](const char *name, const QStringList &captions) {
        Answers answers(captions);
        in<QAbstractButton>(tool, name)->click();
        return answers.last();
    };
    EXPECT_TRUE(press("Command7", {u"Cancelar"_s}).startsWith(u"Atención, desea eliminar"));
    EXPECT_EQ(press("Command7", {u"No"_s, u"Aceptar"_s}), u"Error, seleccione un profesional!");
    EXPECT_EQ(press("Command8", {u"Sí"_s, u"Aceptar"_s}), u"Error, seleccione un profesional!");

    tool.setProfesional(1, u"Dra. Uno"_s);
    in<forms::DTPicker>(tool, "dt1")->setDate(monday);
    in<forms::DTPicker>(tool, "dt2")->setDate(monday.addDays(1));
    in<QTimeEdit>(tool, "tomarhora(2)")->setTime(QTime(14, 0));
    in<QTimeEdit>(tool, "tomarhora(3)")->setTime(QTime(15, 0));
    auto *day = in<forms::CommandButton>(tool, "Command6(2)");
    EXPECT_EQ(forms::toColourValue(forms::backColor(*day)), 65280);
    day->click();
    EXPECT_EQ(forms::toColourValue(forms::backColor(*day)), 255);
    interval.setText(u"0"_s);
    EXPECT_EQ(press("Command7", {u"Sí"_s, u"Aceptar"_s}),
              u"Error, los minutos entre turnos deben ser más que cero.");
    EXPECT_EQ(changed, 0);

    interval.setText(u"25"_s);
    press("Command7", {u"Sí"_s});
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(column(u"Select Hora from Turnos order by Hora"_s), (QStringList{"14:00", "14:25", "14:50"}));
    EXPECT_EQ(forms::toColourValue(forms::backColor(*day)), 65280);

    day->click();
    press("Command8", {u"No"_s});
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"3");
    press("Command8", {u"Sí"_s});
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), u"0");
}

TEST_F(AppointmentBook, aYearOfPlacesLeavesTheOtherDaysFree)
{
    horarios::Esquema year{1, u"Dra. Uno"_s, QDate(2024, 1, 1), QDate(2024, 12, 31), {}, {}, 15};
    year.horas = {QTime(8, 0), QTime(13, 0), QTime(14, 0), QTime(19, 0)};
    for (const std::size_t day : {2u, 3u, 4u, 5u, 6u})
        year.dias.set(day);
    horarios::aplicar(year, true);
    EXPECT_EQ(one(u"Select count(*) from Turnos"_s), QString::number(262 * 40));
    EXPECT_EQ(one(u"Select count(*) from Turnos where Weekday(Fecha) in (1, 7)"_s), u"0");
}

TEST_F(AppointmentBook, twoStationsSeeEachOthersBookingsAndAStaleOneOverwrites)
{
    const QString place = u"INSERT INTO Turnos (Fecha, Hora, Paciente, Dr, idProfesional, idPaciente) VALUES "
                          "(cdate('18/03/2024'), '%1', '<Sin Asignar>', 'Dra. Uno', 1, 0)"_s;
    BaseDatos.execute(place.arg(u"09:00"));
    BaseDatos.execute(place.arg(u"09:30"));
    dao::Recordset day = BaseDatos.openRecordset(u"Select * from Turnos order by Hora"_s);
    ASSERT_TRUE(turnos::libre(day));

    ASSERT_TRUE(bookFromAnotherStation(BaseDatos.path(), u"Vera Luz"_s, 5));
    day.requery();
    EXPECT_FALSE(turnos::libre(day));
    day.moveNext();
    EXPECT_TRUE(turnos::libre(day));

    // Found free, taken by the other station while the dialogue is open, and written all the same.
    ASSERT_TRUE(bookFromAnotherStation(BaseDatos.path(), u"Soria Ian"_s, 6));
    turnos::ocupar(day, booking(u"Paz Ana"_s, 7));
    EXPECT_EQ(one(u"Select Paciente from Turnos where Hora = '09:00'"_s), u"Vera Luz"_s);
    EXPECT_EQ(one(u"Select Paciente from Turnos where Hora = '09:30'"_s), u"Paz Ana"_s);
}

TEST_F(AppointmentBook, mainWindowListsTodaysPatientsOfItsDoctor)
{
    basic::setClock(QDateTime(monday, QTime(8, 0)));
    MODULE11::DrActual = u"Dra. Uno"_s;
    horarios::aplicar(mornings(monday, monday, 20), false);
    for (const char *hour : {"09:00", "09:40"}) {
        dao::Recordset place = BaseDatos.openRecordset(
            u"Select * from Turnos where Hora = '%1'"_s.arg(QString::fromLatin1(hour)));
        turnos::ocupar(place, booking(u"De las "_s + QString::fromLatin1(hour), 7));
    }
    BaseDatos.execute(
        u"INSERT INTO Turnos (Fecha, Hora, Dr, Paciente, idPaciente) VALUES (cdate('18/03/2024'), '10:00', 'Dr. Dos', 'Ajeno', 8)"_s);
    panInicial welcome;
    forms::Label *count = nullptr;
    onceOpen([&](forms::Form &form) {
        count = form.findChild<forms::Label *>(u"Label4"_s);
        EXPECT_EQ(count->text(), u"(tiene asignado 4 turnos para hoy.)"); // free places count too
        form.unload();
    });
    welcome.showModal();
    EXPECT_NE(count, nullptr);

    Vademecum window;
    auto *timer = window.findChild<QTimer *>(u"Timer1"_s);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 65534);
    const auto tick = [timer] { QMetaObject::invokeMethod(timer, "timeout"); };
    const auto names = [&] {
        QStringList texts;
        for (const auto *label : window.findChildren<forms::Label *>())
            if (label->objectName().startsWith(u"lblPac(") && !label->isHidden())
                texts += label->text() + u' ' + forms::tag(label);
        return texts;
    };
    EXPECT_TRUE(names().isEmpty());
    tick();
    EXPECT_EQ(names(), (QStringList{"De las 09:00 7", "De las 09:40 7"}));
    // A name in the bar opens the patient's record.
    run({"Delete * from Usuarios"});
    screens::add("panVisitas", [] { return std::make_unique<forms::Form>(u"panVisitas"_s); });
    emit window.findChild<forms::Label *>(u"lblPac(1)"_s)->clicked();
    EXPECT_EQ(forms::openForms().last()->name(), u"panVisitas"_s);
    EXPECT_EQ(forms::openForms().last()->tag(), u"7"_s);
    BaseDatos.execute(u"Update Turnos set idPaciente = 0 where Hora = '09:40'"_s);
    tick();
    EXPECT_EQ(names(), QStringList{"De las 09:00 7"});
    BaseDatos.execute(u"Update Turnos set Fecha = cdate('19/03/2024') where Hora = '09:00'"_s);
    tick();
    EXPECT_TRUE(names().isEmpty());
}
