#pragma once

#include "core/services/dialogoBuscar.h"

/// "Buscar Paciente": a name's beginning or a number. Answers "PORAP" or "PORHI".
class buscaPaciente : public DialogoBuscar
{
    Q_OBJECT
public:
    buscaPaciente();
};
