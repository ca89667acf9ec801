#pragma once

#include <QStringList>

/// The ordering profiles of the practice: tests of the laboratory that are ordered together, under a name.
namespace laboratorio
{

inline constexpr int largoDelPerfil = 60;

QStringList perfiles(); ///< by name
QStringList estudiosDelPerfil(const QString &perfil);
/// Replaces the profile of that name, in whatever case.
void guardarPerfil(const QString &perfil, const QStringList &estudios);
void borrarPerfil(const QString &perfil);

} // namespace laboratorio
