#pragma once

#include <QDate>
#include <QString>

#include <map>

namespace practice
{

/// The hours of a professional on one day, two periods as "HH:MM"; empty where a period has none.
struct Atencion {
    QString desde1, hasta1, desde2, hasta2;

    QString texto() const;
};

/// The days of a year on which the professional attends. Read at once: a day counts exactly when the
/// schedule has a row of that date. Throws dao::Error.
std::map<QDate, Atencion> diasDeTrabajo(qint64 idProfesional, int ano);

} // namespace practice
