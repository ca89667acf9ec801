#pragma once

#include <QtGlobal>

/// The operations of the main window on the register of patients.

/// Creates a patient, with the paediatric row that every later screen expects, and offers to open it.
void NuevaFicha();
/// Asks for a patient and opens the window that the settings name.
void AbreFicha();
/// The same for a patient that is already chosen.
void AbreFichaDe(qint64 numero);
/// Asks for a patient and deletes it with the tables that hang on it.
void BorraFicha();
