#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

/// Copies of the practice's file. A copy bears its name only once it is whole and has been checked: what was
/// left half-way lies beside it as ".parcial" at most, and is taken away by the next.
namespace respaldo
{

/// How much of the file is copied, in bytes; false stops.
using Avance = std::function<bool(qint64 hechos, qint64 total)>;

/// "2024_03_15_103000.MDB".
QString nombre(const QDateTime &momento);

/// Copies the file while no other station writes in it, opens the copy with its key, checks it page by page
/// and gives it its name, over one of the same name. Throws basic::Error with what keeps it from being made;
/// false when it was stopped.
bool copiar(const QString &origen, const QString &destino, const QString &conexion, const Avance &avance);

} // namespace respaldo
