#pragma once

#include <QString>

#include <functional>

namespace forms
{
class CommandButton;
class Form;
} // namespace forms

namespace records
{

/// What a command asks before it works: the right of the user, by its key, and a question that a Yes answers.
/// Empty for none.
struct Before {
    QString gate = {};
    QString question = {};
};

/// A button of the window, declared in one place: its name, what it shows, what it asks and what it does. The
/// window owns it.
forms::CommandButton &comando(forms::Form &window, const QString &name, const QString &caption,
                              const QString &icon, std::function<void()> work, Before before = {});

} // namespace records
