#pragma once

#include "platform/dao/recordset.h"

#include <QString>

/// The operations of the main window on the register of patients.

/// Creates a patient, with the paediatric row that every later screen expects, and offers to open it.
void NuevaFicha();
/// Asks for a patient and opens the window that the settings name.
void AbreFicha();
/// Asks for a patient and deletes it with the tables that hang on it.
void BorraFicha();

/// Asks for a patient; its number as text, or empty.
QString EligePaciente();
/// Asks for a surname and names to look for; empty when cancelled.
QString PideNombreDePaciente();
/// Asks for the start of a name or a number and moves the recordset of patients to it.
void BuscaEnPacientes(dao::Recordset &pacientes);
