#pragma once

#include "core/records/tabla.h"

/// "Estados de los turnos": the list of names that an appointment's state is chosen from.
class panEstadosTurnos : public records::Tabla
{
    Q_OBJECT
public:
    panEstadosTurnos();

private:
    void agregar();
};
