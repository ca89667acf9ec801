#pragma once

#include <QString>

/// Which table holds the layout of this workstation's prescription sheet: `TablaRecetario`.
namespace MODULE11
{

/// Settles the table, once in a session: the one in the settings, or a new one of this workstation.
void prepararRecetario();
/// Makes sure that the table settled is still there; else it is told, and the default one serves.
void comprobarRecetario();
/// Makes an empty layout table. Throws dao::Error when there is one of the name.
void crearRecetario(const QString &nombre);

} // namespace MODULE11
