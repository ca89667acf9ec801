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

/// Asks for the start of a name or a number and moves the recordset to the row that has it in these columns.
/// The text when there is no such row; where nothing was asked for, the row stays.
std::optional<QString> BuscaEnPacientes(dao::Recordset &filas, const QString &nombre, const QString &numero);
