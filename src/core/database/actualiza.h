#pragma once

#include "platform/dao/schema.h"

#include <QString>

namespace MODULE11
{

/// Brings a database of any earlier version up to date: the whole list of statements runs at every start,
/// each for itself; one that has taken effect before fails and is skipped.
void ActualizaBase();

/// Adds an appointment state that is missing.
void AgregaEstadoTurno(const QString &estado);

/// Appends the field to the table unless it is there; with the action "DELETE" deletes it.
void ModificaCampo(const QString &tabla, const QString &campo, dao::FieldType tipo, int tamano,
                   const QString &accion);

} // namespace MODULE11
