#pragma once

#include "platform/basic/value.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

/// The complementary examinations of a patient: one report with pictures for each kind of examination.
namespace complementos
{

/// What stands in the date of a picture that has none.
inline const QString sinFecha = QStringLiteral("xx/xx/xxxx");

struct Imagen {
    QString archivo;
    basic::Value fecha; ///< a day, or Null

    bool operator==(const Imagen &) const = default;
};

struct Complemento {
    QString informe;       ///< file of the text
    bool guardado = false; ///< it has its row
    std::vector<Imagen> imagenes;
};

/// The report as it is kept; with the file that it would have when there is none yet. A report that was kept
/// under another name, and is still there, stays under it.
Complemento leer(qint64 paciente, const QString &examen);

/// Keeps the report's row, and those of the pictures whose file exists. Throws basic::Error, without having
/// changed anything, for a path that the table does not hold.
void guardar(qint64 paciente, const QString &examen, const Complemento &complemento);

/// The date typed beside a picture: a day; Null for none; nothing when it is neither.
std::optional<basic::Value> fechaEscrita(const QString &texto, QDate hoy);

} // namespace complementos
