#pragma once

#include "platform/basic/value.h"

#include <QString>

namespace MODULE11
{

/// What the login window gave for the appointment book's mode "Por Usuario".
struct TurnosPorUsuario {
    basic::Date fecha;
    QString profesional;
};
extern TurnosPorUsuario turnosPorUsuario;

/// Asks who works here, up to three times; sets user, level, type and id. With no users it tells how to
/// make some and succeeds. False: the program must end.
bool ingresar();

} // namespace MODULE11
