#pragma once

#include "core/session/screennames.h"
#include "platform/forms/form.h"

#include <QString>

#include <functional>
#include <memory>

/// The registry through which screens of one subsystem open those of another, by name. Each subsystem
/// registers its windows and commands at start; what is not registered cannot be opened, and the menu items
/// that lead to it are disabled. What one subsystem asks of another with arguments goes through ports.h.
namespace screens
{

using Factory = std::function<std::unique_ptr<forms::Form>()>;
using Operation = std::function<void()>;

void add(Window window, Factory factory);
template <class Screen>
void add(Window window)
{
    add(window, [] { return std::make_unique<Screen>(); });
}
bool has(Window window);

/// The first of the windows if it is registered, else the second: a screen that stands in for one to come.
Window oneOf(Window window, Window substitute);

/// A new instance, or null when the window is not registered.
std::unique_ptr<forms::Form> make(Window window);

/// Shows the window modally with this tag and returns the tag it answered; empty when not registered.
QString showModal(Window window, const QString &tag = {});

/// Shows a new instance as a child of the main window. A caption that is empty leaves the window's own.
void showChild(Window window, const QString &tag = {}, const QString &caption = {});
/// Brings the child window forward that is open, or opens it: one of which there is only one.
void showSingle(Window window, bool maximised = false);

/// Commands that are no window of their own: "NuevaFicha", "AbreFicha", ...
void addOperation(Command command, Operation operation);
bool hasOperation(Command command);
void run(Command command);

} // namespace screens
