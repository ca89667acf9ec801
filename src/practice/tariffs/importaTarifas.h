#pragma once

#include "platform/dao/database.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

/// Tariffs from a file of another program: lines of texts with a separator, the first of which names the
/// columns as the table or the grid does, in any order. A code that is there is changed in the columns that
/// the file has, another is added.
namespace tarifas
{

struct Importacion {
    qint64 nuevas = 0, cambiadas = 0;
    QStringList omitidas = {}; ///< the lines that were not taken in, with the reason
    bool detenida = false;
};

/// The text of a file in UTF-8, or else in Windows-1252.
QString textoDeArchivo(const QByteArray &archivo);

/// Throws basic::Error when the first line names neither code nor description. `sigue`, told of the lines
/// read and of how many there are, stops it.
Importacion importaCsv(dao::Database &base, const QString &texto,
                       const std::function<bool(qint64 hechas, qint64 de)> &sigue);

} // namespace tarifas
