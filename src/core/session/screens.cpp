#include "core/session/screens.h"

#include <map>

namespace screens
{

namespace
{

std::map<QString, Factory> &factories()
{
    static std::map<QString, Factory> all;
    return all;
}

std::map<QString, Operation> &registeredOperations()
{
    static std::map<QString, Operation> all;
    return all;
}

} // namespace

void add(Window window, Factory factory)
{
    factories()[window.text()] = std::move(factory);
}

bool has(Window window)
{
    return factories().count(window.text()) != 0;
}

Window oneOf(Window window, Window substitute)
{
    return has(window) ? window : substitute;
}

std::unique_ptr<forms::Form> make(Window window)
{
    const auto found = factories().find(window.text());
    return found == factories().end() ? nullptr : found->second();
}

QString showModal(Window window, const QString &tag)
{
    const auto form = make(window);
    if (!form)
        return {};
    form->setTag(tag);
    form->showModal();
    return form->tag();
}

void showChild(Window window, const QString &tag, const QString &caption)
{
    auto form = make(window);
    if (!form)
        return;
    form->setTag(tag);
    if (!caption.isEmpty())
        form->setWindowTitle(caption);
    form.release()->showChild(); // from here on the main window's area owns it
}

void showSingle(Window window, bool maximised)
{
    if (forms::Form *open = forms::openChild(window.text()))
        open->showChild();
    else if (auto form = make(window))
        form.release()->showChild(maximised);
}

void addOperation(Command command, Operation operation)
{
    registeredOperations()[command.text()] = std::move(operation);
}

bool hasOperation(Command command)
{
    return registeredOperations().count(command.text()) != 0;
}

void run(Command command)
{
    if (const auto found = registeredOperations().find(command.text()); found != registeredOperations().end())
        found->second();
}

} // namespace screens
