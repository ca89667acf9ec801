#pragma once

#include "core/records/campos.h"
#include "paediatrics/perinatal/ficha.h"

namespace perinatal
{

extern const QStringList gruposSanguineos;

/// The fields of a window over the birth record: its measures say what they are written in, and its groups
/// have the record's own words.
class Campos : public records::Campos
{
public:
    explicit Campos(const QString &tabla);

    forms::Item opciones(const QString &columna, int porRenglon);
};

} // namespace perinatal
