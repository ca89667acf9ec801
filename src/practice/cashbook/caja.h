#pragma once

#include "platform/dao/recordset.h"

#include <QString>

#include <optional>

class QComboBox;

/// The practice's cashbook: what came in and what went out, a row a movement, and the plan of accounts. A row
/// holds the name of its account as it was when it was written.
namespace caja
{

inline const QString todas = QStringLiteral("<Todas>");

/// What a person writes of a movement.
struct Movimiento {
    basic::Date fecha;
    QString cuenta, detalle;
    bool entra = false; ///< money in; else out
    basic::Currency importe;
};

/// The amount as a person types it; 0 for what is no number.
basic::Currency importe(const QString &escrito);
QString enTexto(basic::Currency importe); ///< as importe() reads it

Movimiento leer(dao::Recordset &fila);
void escribir(dao::Recordset &fila, const Movimiento &movimiento);

struct Sumas {
    basic::Currency entradas, salidas;
};

/// Which movements are looked at, and in what order: all, by their day, to begin with.
struct Consulta {
    QString condicion = QStringLiteral("True");
    QString orden = QStringLiteral("fecha");

    QString sql() const;
    /// What its rows come to; nothing where it has none.
    std::optional<Sumas> sumas() const;
};

/// Those of the days from one to the other, both included with their hours, of an account or of `todas`.
Consulta movimientos(basic::Date desde, basic::Date hasta, const QString &cuenta, const QString &orden);

/// Adds the names of the plan, in its order.
void agregarCuentas(QComboBox &lista);

/// What the accounting report selects.
QString seleccion(basic::Date desde, basic::Date hasta, const QString &cuenta);

} // namespace caja
