#pragma once

#include "platform/basic/value.h"
#include "platform/dao/recordset.h"

#include <QIODevice>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace informes
{

using Periodo = std::pair<basic::Date, basic::Date>;

/// Asks for a name and writes the query's rows as a table for a browser into the program's folder; then
/// opens it. Nothing happens when the name is cancelled. Throws basic::Error.
void exportaHtml(const QString &sql, const QString &titulo, int ancho,
                 const std::optional<Periodo> &periodo = std::nullopt);

/// The table itself; false when `sigue`, told of the rows written, stops it.
bool escribeHtml(QIODevice &archivo, const dao::Recordset &filas, const QString &titulo, int ancho,
                 const std::optional<Periodo> &periodo, const std::function<bool(qint64 filas)> &sigue);

} // namespace informes
