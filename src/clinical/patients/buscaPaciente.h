#pragma once

#include "core/services/dialogoBuscar.h"

#include <optional>

/// "Buscar Paciente": a name's beginning or a number. Answers "PORAP" or "PORHI".
class buscaPaciente : public services::DialogoBuscar
{
    Q_OBJECT
public:
    buscaPaciente();
};

/// Asks for the start of a name or a number and moves the recordset of patients to it. The text when there is
/// no such patient; where nothing was asked for, the row stays.
std::optional<QString> BuscaEnPacientes(dao::Recordset &pacientes);
