#pragma once

#include "platform/dao/database.h"

#include <QString>

/// The session's state, read by every screen, and the routines shared by them (services.h).
namespace MODULE11
{

/// The one open connection to the practice's file.
extern dao::Database BaseDatos;

extern QString
    DrActual; ///< doctor of this workstation; the value of the Dr columns, equal to Profesionales.Nombre
extern QString MatriculaDr;
extern QString EspecialidadDr;
extern QString DomicilioDr;
extern QString TelefonosDr;
extern QString LocalidadDr;
extern QString LugarEjercicio;

extern QString UsuarioActual; ///< name of the logged-in user
extern int NivelActual;       ///< Usuarios.Nivel; 0 while the user table is empty and no gate applies
extern QString TipoUsuario;   ///< "M", "S" or "A"
extern qint64 IdUsuarioActual;

extern QString TablaRecetario; ///< table of the prescription layout

/// Gives every variable but the connection its value at the start of the program.
void valoresIniciales();

/// User, level, type and id as they are before somebody logs in.
void sinUsuario();

} // namespace MODULE11
