#pragma once

#include "platform/dao/schema.h"

#include <optional>

/// What a person types to compare a column with.
namespace services
{

/// The text as a literal of the column's type, so that it is never read as anything else: "1,5" for a number
/// is 1.5, "Sí" for a yes or no is -1. Nothing for a text that is no value of the type.
std::optional<QString> literal(const dao::FieldDef &campo, const QString &escrito);
/// Why there is none: what the column asks for.
QString loQuePide(const dao::FieldDef &campo);

/// "[Fecha] >= cdate('1/3/2024')"; nothing when the value has no literal.
std::optional<QString> criterio(const dao::FieldDef &campo, const QString &comparacion,
                                const QString &escrito);

} // namespace services
