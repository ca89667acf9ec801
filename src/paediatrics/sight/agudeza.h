#pragma once

#include "platform/basic/value.h"
#include "platform/dao/recordset.h"

#include <QStringList>

#include <array>

/// Visual acuity.
namespace agudeza
{

/// One test: of each eye near and far, as tenths written "5/10".
struct Medicion {
    basic::Date fecha;
    std::array<QString, 4> agudezas; ///< in the order of columnas()
    QString observaciones;
};

const QStringList &columnas();
/// "10/10" down to "1/10".
QStringList valores();

Medicion leer(dao::Recordset &fila);
void escribir(dao::Recordset &fila, const Medicion &medicion);

/// The number before the "/"; 0 of a text without one.
double valor(const QString &agudeza);
/// The mean of the four, as a whole number.
double promedio(const Medicion &medicion);

} // namespace agudeza
