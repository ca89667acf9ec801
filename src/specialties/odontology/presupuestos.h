#pragma once

#include "platform/basic/value.h"
#include "specialties/odontology/esquema.h"

#include <QString>

#include <optional>
#include <vector>

/// Treatment budgets: their lines, taken from the practice's price list. All throw dao::Error.
namespace presupuestos
{

/// The lines of a budget; of none there are none.
QString renglones(std::optional<qint64> presupuesto);
/// Their sum; 0 without lines.
basic::Currency total(qint64 presupuesto);
/// The subtotal of a line. Nothing for what is more than a column of money holds.
std::optional<basic::Currency> subtotal(double cantidad, basic::Currency precio);

bool existe(qint64 presupuesto); ///< another station may have deleted it
/// Adds a line with the practice's name and price of today.
void agregar(qint64 presupuesto, qint64 practica, double cantidad = 1);
/// Deletes the lines and the head.
void borrar(qint64 presupuesto);

struct Practica {
    qint64 id;
    QString detalle;
    basic::Currency precio;
};
/// Adds to the price list.
qint64 nuevaPractica(const QString &detalle, basic::Currency precio);

/// What a scheme's marks would take: so many of a practice, for these teeth.
struct Propuesta {
    Practica practica;
    std::vector<int> piezas;
};
/// The marks by kind with the first practice of the price list whose name has the kind's word. `sinPractica`
/// gets the names of the kinds that none has.
std::vector<Propuesta> propuestas(const odonto::Esquema &esquema, QStringList &sinPractica);

} // namespace presupuestos
