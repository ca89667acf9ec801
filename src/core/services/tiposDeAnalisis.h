#pragma once

#include "platform/dao/schema.h"

#include <QStringList>

/// The laboratory tests that can be ordered: the columns of `Analisis` but those of the order itself.
namespace laboratorio
{

bool esEstudio(const dao::FieldDef &columna);

/// In the order of the table. Throws dao::Error.
QStringList estudios();

} // namespace laboratorio
