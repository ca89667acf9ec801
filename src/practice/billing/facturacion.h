#pragma once

#include "platform/dao/database.h"

#include <QString>

#include <functional>
#include <optional>

/// The bills of the practice to the insurers. A visit stands on one bill at most, whatever stations bill at
/// the same time, and a bill's total is at any moment that of the lines it has.
namespace facturacion
{

/// Whose visits, and to whom they are billed.
struct Partes {
    qint64 idPrestador = 0, idObraSocial = 0;
    QString prestador, obraSocial;
};

struct Emision {
    QString numero;
    basic::Date fecha;
    bool cobrada = false;
    bool asientaEnCaja = false;
};

/// The visits still to be billed in a period, and the sum of their amounts as "Total".
QString pendientes(const Partes &partes, basic::Date desde, basic::Date hasta);
QString sumaDePendientes(const Partes &partes, basic::Date desde, basic::Date hasta);
/// The bills of a period that are not collected.
QString sinCobrar(const Partes &partes, basic::Date desde, basic::Date hasta);
/// The bills of a year that were collected, and their sum as "Total"; of all coverages where none is chosen.
QString cobradas(const Partes &partes, int anio);
QString sumaDeCobradas(const Partes &partes, int anio);
/// The lines of a bill. A patient or a service that is gone leaves its place empty.
QString detalle(qint64 idFacturacion);

/// The number after the last one that the professional's bills have; of the first bill without one.
QString proximoNumero(dao::Database &base, qint64 idPrestador);
/// A printed number one up: its last digits, in as many places.
QString siguiente(const QString &numero);

/// Marks the current visit for the next batch, or takes its mark away.
void alternaMarca(dao::Recordset &visita);

/// Puts every marked visit of the practice on a new bill: its key; nothing when there is none, or when
/// another station was faster. `sigue`, told of the lines written, never stops it: a bill is made whole.
/// Throws dao::Error; then the bill has what was written before.
std::optional<qint64> factura(dao::Database &base, const Partes &partes, const Emision &emision,
                              const std::function<void(qint64 hechas, qint64 de)> &avance = {});

/// Marks a bill as collected, and posts it to the cashbook if asked. False when it was collected before.
bool cobra(dao::Database &base, qint64 idFacturacion, bool asientaEnCaja, basic::Date fecha);

} // namespace facturacion
