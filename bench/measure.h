#pragma once

#include "platform/forms/form.h"

#include <QElapsedTimer>
#include <QTimer>

#include <exception>
#include <functional>
#include <stdexcept>

namespace bench
{

using Report = std::function<void(const char *work, double milliseconds, double limit)>;

inline double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

template <class Work>
double elapsed(Work &&work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return milliseconds(timer);
}

template <class Control>
Control &in(QWidget &window, const char *name)
{
    auto *control = window.findChild<Control *>(QString::fromLatin1(name));
    if (!control)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

/// Runs `inside` in the window that `open` shows modally. What it throws closes the window and comes out
/// here.
inline void modally(const std::function<void()> &open, const std::function<void(forms::Form &)> &inside)
{
    std::exception_ptr failure;
    QTimer::singleShot(0, [&] {
        forms::Form *window = forms::topModal();
        if (!window)
            return;
        try {
            inside(*window);
        } catch (...) {
            failure = std::current_exception();
            window->unload();
        }
    });
    open();
    if (failure)
        std::rethrow_exception(failure);
}

/// Milliseconds until the first paint of a modal window has reached its picture.
inline double untilPainted(forms::Form &form)
{
    QElapsedTimer timer;
    timer.start();
    double painted = 0;
    modally([&] { form.showModal(); },
            [&](forms::Form &) {
                form.grab();
                painted = milliseconds(timer);
                form.unload();
            });
    return painted;
}

} // namespace bench
