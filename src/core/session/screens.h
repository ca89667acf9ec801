#pragma once

#include "platform/forms/form.h"

#include <QString>

#include <functional>
#include <memory>

/// The registry through which screens of one subsystem open those of another, by name. Each subsystem
/// registers its windows and operations at start; what is not registered cannot be opened, and the menu
/// items that lead to it are disabled.
namespace screens
{

using Factory = std::function<std::unique_ptr<forms::Form>()>;
using Operation = std::function<void()>;
using Query = std::function<QString()>;

void add(const QString &window, Factory factory);
template <class Screen>
void add(const QString &window)
{
    add(window, [] { return std::make_unique<Screen>(); });
}
bool has(const QString &window);

/// The first of the windows if it is registered, else the second: a screen that stands in for one to come.
QString oneOf(const QString &window, const QString &substitute);

/// A new instance, or null when the window is not registered.
std::unique_ptr<forms::Form> make(const QString &window);

/// Shows the window modally with this tag and returns the tag it answered; empty when not registered.
QString showModal(const QString &window, const QString &tag = {});

/// Shows a new instance as a child of the main window. A caption that is empty leaves the window's own.
void showChild(const QString &window, const QString &tag = {}, const QString &caption = {},
               bool maximised = false);

/// Commands that are no window of their own: "NuevaFicha", "AbreFicha", ...
void addOperation(const QString &name, Operation operation);
bool hasOperation(const QString &name);
void run(const QString &name);

/// Dialogues that answer a text, such as "EligePaciente". Nothing chosen, or not registered: an empty text.
void addQuery(const QString &name, Query query);
QString ask(const QString &name);

} // namespace screens
