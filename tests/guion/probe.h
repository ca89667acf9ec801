#pragma once

#include "guion/script.h"
#include "guion/windows.h"

/// Reads what a person sees of a control, a menu item or an item that a control draws.
namespace guion
{

/// The text read in a control or window.
QString visibleText(const Target &target);
/// The same as it is written in the program, with the mnemonic's "&".
QString rawText(const Target &target);

bool isPropertyName(const QString &name);
/// The property in script form. Throws Failure when the control has none of that name.
QString readProperty(const Target &target, const Property &property);

} // namespace guion
