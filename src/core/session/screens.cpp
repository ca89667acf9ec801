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

std::map<QString, Operation> &operations()
{
    static std::map<QString, Operation> all;
    return all;
}

std::map<QString, Query> &queries()
{
    static std::map<QString, Query> all;
    return all;
}

} // namespace

void add(const QString &window, Factory factory)
{
    factories()[window] = std::move(factory);
}

bool has(const QString &window)
{
    return factories().count(window) != 0;
}

QString oneOf(const QString &window, const QString &substitute)
{
    return has(window) ? window : substitute;
}

std::unique_ptr<forms::Form> make(const QString &window)
{
    const auto found = factories().find(window);
    return found == factories().end() ? nullptr : found->second();
}

QString showModal(const QString &window, const QString &tag)
{
    const auto form = make(window);
    if (!form)
        return {};
    form->setTag(tag);
    form->showModal();
    return form->tag();
}

void showChild(const QString &window, const QString &tag, const QString &caption, bool maximised)
{
    auto form = make(window);
    if (!form)
        return;
    form->setTag(tag);
    if (!caption.isEmpty())
        form->setWindowTitle(caption);
    form.release()->showChild(maximised); // from here on the main window's area owns it
}

void addOperation(const QString &name, Operation operation)
{
    operations()[name] = std::move(operation);
}

bool hasOperation(const QString &name)
{
    return operations().count(name) != 0;
}

void run(const QString &name)
{
    if (const auto found = operations().find(name); found != operations().end())
        found->second();
}

void addQuery(const QString &name, Query query)
{
    queries()[name] = std::move(query);
}

QString ask(const QString &name)
{
    const auto found = queries().find(name);
    return found == queries().end() ? QString() : found->second();
}

} // namespace screens
