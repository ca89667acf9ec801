#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <utility>

/// What the day book shows: the visits of a day, a month or a year.
namespace diario
{

enum class Periodo { Dia, Mes, Anio };
enum class Clase { Todas, PrimeraVez, Ulterior };

inline const QString todas = QStringLiteral("<Todas>"); ///< the coverages
inline const QString todos = QStringLiteral("<Todos>"); ///< the professionals

struct Pedido {
    Clase clase = Clase::Todas;
    Periodo periodo = Periodo::Dia;
    basic::Date dia = {}; ///< of a day
    int mes = 1;          ///< of a month
    int anio = 0;         ///< of a month or a year
    QString obraSocial = todas, profesional = todos;

    std::pair<basic::Date, basic::Date> fechas() const; ///< the first and the last day
    QString titulo() const;

    QString consulta() const;  ///< the visits, by their hour
    QString suma() const;      ///< their money, in one field
    QString seleccion() const; ///< the same visits in a report
};

} // namespace diario
