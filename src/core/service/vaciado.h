#pragma once

#include "platform/dao/database.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <span>
#include <vector>

/// Emptying the tables of the practice's daily records. The roll of patients, the cashbook, the appointments
/// and the catalogues are none of them.
namespace vaciado
{

/// In the order in which they are emptied.
std::span<const QStringView> tablas();

struct Cuenta {
    QString tabla;
    std::optional<qint64> registros; ///< nothing: this file has no such table
};
/// What lies in each of them now. Throws dao::Error.
std::vector<Cuenta> cuentas();

struct Resultado {
    int vaciadas = 0;
    QStringList fallas; ///< "Medidas: ..." of each that could not be emptied and was left whole
    bool detenido = false;
};
/// Empties one table after another, each in one stroke: it is emptied or stays as it was. A table that this
/// file does not have is passed over. `sigue` hears the table that is next, and stops the work with false.
Resultado vaciar(dao::Database &base, const std::function<bool(const QString &tabla)> &sigue);

} // namespace vaciado
