#pragma once

#include "names.h"

#include <QDate>
#include <QStringList>
#include <QTime>

#include <vector>

/// The appointment book of the synthetic practice.
namespace practica
{

struct Client {
    int number;
    QString name;
    QDate birth;
    QString coverage;
};

/// The working days of a span of dates, each with places of a quarter of an hour in some stretches of the
/// day.
struct Book {
    struct Stretch {
        QTime from;
        int places;
    };
    QDate first, last, today;
    int lastWeekday; ///< 5: Monday to Friday, 6: Saturdays too
    std::vector<Stretch> stretches;
    double takenBefore, takenToday, takenAfter; ///< shares of places given, by the day they are on
};

Book tenAfternoons(QDate today);
/// From eight months back to four ahead: some 60,000 places of three professionals, some 40,000 given.
Book aYearOfAppointments(QDate today);

/// Professionals have the keys 1, 2, ... in the order of their names.
void addAppointments(const Book &book, const QStringList &doctors, const std::vector<Client> &clients,
                     Dice &dice);

} // namespace practica
