#pragma once

#include "core/services/tiposDeAnalisis.h"
#include "platform/dao/recordset.h"

#include <QStringList>

/// The laboratory orders of a patient. An order is one row of `Analisis` in which each test is a column of
/// its own: the columns of the table are the list of tests, and those of a row that are not Null are its
/// order.
namespace laboratorio
{

/// What a test that was ordered holds until its result arrives.
inline const QString pendiente = QStringLiteral("-");

struct Pedido {
    basic::Date fecha, hora;
    QString bioquimico, descripcion;
    QStringList estudios;
};

struct Resultado {
    QString estudio, valor;
    bool operator==(const Resultado &) const = default;
};

/// Puts an order into the row being added.
void escribirPedido(dao::Recordset &fila, qint64 paciente, const Pedido &pedido);

/// The tests of the current row, with or without result.
std::vector<Resultado> resultados(dao::Recordset &orden);

/// Puts a result into the row being edited; what is left pending in a column of days is Null there.
void escribirResultado(dao::Recordset &orden, const Resultado &resultado);

/// How many characters a result may have; 0 where it is no text.
int largoDelResultado(const dao::Recordset &orden, const QString &estudio);

/// `tmpAnalisis` holds these tests and nothing else.
void llenarPlanilla(const std::vector<Resultado> &resultados);

/// The orders of the patient by day and hour, with a column for each of the tests.
QString comparacion(qint64 paciente, const QStringList &estudios);

} // namespace laboratorio
