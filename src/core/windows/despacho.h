#pragma once

#include "core/windows/menu.h"

/// What choosing a menu item or a toolbar button does.
namespace menu
{

/// Whether the entry leads anywhere in this program.
bool available(const Entry &entry);
void choose(const Entry &entry);

Entry asEntry(const Button &button);

/// The number of the patient whose window is active, or empty.
QString activePatient();

/// Shows the exit dialogue; ends the program on yes. False when the person stays.
bool exitDialogue();

} // namespace menu
