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
/// Whether the table has what a layout needs; false without one of the name.
bool esRecetario(const QString &nombre);

/// The table that this workstation takes at its next start; empty before it has had one.
QString recetarioElegido();
void elegirRecetario(const QString &nombre);

} // namespace MODULE11
