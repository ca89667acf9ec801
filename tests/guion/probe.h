#pragma once

#include "guion/script.h"

class QObject;
class QWidget;

/// Reads what a person sees of a control.
namespace guion
{

/// The text read in a control or window.
QString visibleText(const QObject &object);
/// True when the text may also be given as it is written in the program, with the mnemonic's "&".
QString rawText(const QObject &object);

bool isPropertyName(const QString &name);
/// The property in script form. Throws Failure when the control has none of that name.
QString readProperty(const QObject &object, const Property &property);

} // namespace guion
