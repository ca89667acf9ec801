#include "appointments.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/forms/controls.h"
#include "practice/appointments/horarios.h"
#include "practice/appointments/panDispTurnos.h"
#include "practice/appointments/panNueTurno.h"
#include "practice/appointments/panTurnos.h"
#include "practice/professionals/calendarioAnual.h"

#include <QApplication>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;

namespace bench
{

namespace
{

constexpr double patience = 100; // milliseconds

/// Today, or Monday on a Sunday.
QDate workingDay()
{
    const QDate today = basic::today().date();
    return today.dayOfWeek() == 7 ? today.addDays(1) : today;
}

void dayView(panTurnos &book, const Report &report)
{
    auto &calendar = in<forms::MonthView>(book, "calendar1");
    const QDate today = workingDay();
    double slowest = 0;
    for (int day = -60; day <= 60; ++day)
        slowest = std::max(slowest, elapsed([&] {
                               calendar.setSelectedDate(today.addDays(day));
                               book.grab();
                           }));
    report("book: another day, slowest of 121", slowest, patience);
    calendar.setSelectedDate(today);
    for (const char *filter : {"Combo1", "Combo2", "Combo3"}) {
        auto &combo = in<forms::ComboBox>(book, filter);
        double worst = 0;
        for (int entry = combo.count() - 1; entry >= 0; --entry)
            worst = std::max(worst, elapsed([&] {
                                 combo.setCurrentIndex(entry);
                                 book.grab();
                             }));
        report((std::string("book: filter ") + filter).c_str(), worst, patience);
    }
}

void goToPlace(panTurnos &book, bool free)
{
    const auto &grid = in<forms::DBGrid>(book, "DBGrid2");
    for (int row = 0; row < grid.model()->rowCount(); ++row)
        if ((grid.model()->index(row, 2).data().toString() == turnos::sinAsignar) == free) {
            in<forms::DBGrid>(book, "DBGrid2").setCurrentRow(row);
            return;
        }
}

void booking(panTurnos &book, const Report &report)
{
    goToPlace(book, true);
    QElapsedTimer timer;
    double opened = 0, found = 0;
    timer.start();
    modally([&] { in<QPushButton>(book, "Command2").click(); },
            [&](forms::Form &dialogue) {
                dialogue.grab();
                opened = milliseconds(timer);
                auto &search = in<forms::TextBox>(dialogue, "txtBusca");
                found = elapsed([&] {
                    search.setText(u"Suárez"_s);
                    emit search.textEdited(search.text());
                    dialogue.grab();
                });
                in<forms::ComboBox>(dialogue, "Combo1").setCurrentIndex(0);
                in<forms::ComboBox>(dialogue, "Combo2").setCurrentIndex(0);
                timer.start();
                in<QPushButton>(dialogue, "Command1").click();
            });
    book.grab();
    report("booking: open to first paint", opened, patience);
    report("booking: a name typed", found, patience);
    report("booking: accept to the day painted again", milliseconds(timer), patience);
}

void stateAndFreeing(panTurnos &book, const Report &report)
{
    QElapsedTimer timer;
    modally([&] { in<QPushButton>(book, "Command6").click(); },
            [&](forms::Form &dialogue) {
                in<forms::ComboBox>(dialogue, "Combo3").setCurrentIndex(0);
                timer.start();
                in<QPushButton>(dialogue, "Command1").click();
            });
    book.grab();
    report("state: accept to the day painted again", milliseconds(timer), patience);
    QTimer::singleShot(0, [&] {
        for (auto *button : QApplication::activeModalWidget()->findChildren<QPushButton *>())
            if (button->text() == u"&Sí") {
                timer.start();
                button->click();
            }
    });
    in<QPushButton>(book, "Command3").click();
    book.grab();
    report("freeing: yes to the day painted again", milliseconds(timer), patience);
}

void aYear(const Report &report)
{
    constexpr int nobody = 990001;
    const QDate today = basic::today().date();
    horarios::Esquema year{nobody, u"Dr. Banco de Pruebas"_s, today.addYears(2), today.addYears(3), {}, {},
                           15};
    year.horas = {QTime(8, 0), QTime(13, 0), QTime(14, 0), QTime(19, 0)};
    year.dias = 0b1111100;
    report("a year of one professional's places made", elapsed([&] { horarios::aplicar(year, true); }), 5000);
    practice::CalendarioAnual calendar;
    in<forms::TextBox>(calendar, "txtAno").setText(QString::number(year.desde.year() + 1));
    calendar.grab();
    const auto show = [&] {
        calendar.setProfesional(nobody);
        calendar.grab();
    };
    report("the year's working days shown", elapsed(show), 100);
    report("the year removed", elapsed([&] { horarios::quitar(year); }), 5000);
}

} // namespace

void appointments(const Report &report)
{
    const auto count = [](const char *condition) {
        return MODULE11::BaseDatos
            .openRecordset(u"Select count(*) from Turnos where "_s + QString::fromLatin1(condition))[0]
            .integer();
    };
    std::cout << "appointment book: " << count("true") << " places, " << count("idPaciente <> 0")
              << " given\n";
    MODULE11::TipoUsuario = u"S"_s; // who keeps the book sees all professionals
    auto *book = new panTurnos;     // the area of the child windows owns it
    const double opened = elapsed([&] {
        book->showChild();
        book->grab();
    });
    report("panTurnos, open to first paint", opened, patience);
    dayView(*book, report);
    booking(*book, report);
    stateAndFreeing(*book, report);
    book->unload();
    panDispTurnos day(basic::Date(workingDay()), 1);
    const double seen = elapsed([&] {
        modally([&] { day.showModal(); },
                [](forms::Form &window) {
                    window.grab();
                    window.unload();
                });
    });
    report("panDispTurnos, open to first paint", seen, patience);
    aYear(report);
}

} // namespace bench
