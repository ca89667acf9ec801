#pragma once

#include "core/services/dialogoBuscar.h"

/// "Buscar Paciente": a name's beginning or a number. Answers "PORAP" or "PORHI".
class buscaPaciente : public DialogoBuscar
{
    Q_OBJECT
public:
    buscaPaciente();
};

/// Asks for the start of a name or a number and moves the recordset of patients to it. False when there is no
/// such patient; where nothing was asked for, the row stays.
bool BuscaEnPacientes(dao::Recordset &pacientes);
