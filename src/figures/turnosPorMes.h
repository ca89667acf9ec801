#pragma once

#include <QDate>
#include <QString>

namespace figures
{

/// Which appointments are counted; an empty text takes all.
struct FiltroDeTurnos {
    QDate desde, hasta;
    QString profesional, especialidad, estado, obraSocial;
};

/// The appointments by month, professional, state, speciality and plan. Month and year are compared each by
/// itself: a range over a new year selects nothing, as the practice has always read it.
QString consultaDeTurnos(const FiltroDeTurnos &filtro);
/// The same as the report file takes it.
QString seleccionDeTurnos(const FiltroDeTurnos &filtro);

} // namespace figures
