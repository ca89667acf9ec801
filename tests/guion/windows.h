#pragma once

#include "guion/script.h"
#include "platform/forms/boxes.h"
#include "platform/forms/drawn.h"

#include <QAction>
#include <QObject>
#include <QWidget>

#include <optional>

/// What is on the screen, and where an address leads.
namespace guion
{

/// The box on top, or null when the topmost window is none.
QWidget *topBox();
/// The window that has the person's attention: the topmost modal one, the active child, the main window.
QWidget *activeWindow();
/// A visible window by class name and tag, the one last active of several; null without one.
QWidget *findWindow(const Address::Part &part);
/// One line about all that is open, for reports.
QString describeWindows();

/// What an address leads to: a window, a control, a menu item, or an item that a control draws itself.
struct Target {
    QObject *object = nullptr;
    std::optional<forms::DrawnItem> drawn = {}; ///< by the object

    explicit operator bool() const { return object; }
};

/// Throws Missing.
Target find(const Address &address);
QWidget *findWidget(const Address &address);
/// What a person can reach: visible, enabled, not behind a modal window. Throws Missing or Failure.
Target findReachable(const Address &address);
/// The same where only a control will do.
QWidget *findReachableWidget(const Address &address);
/// A caption as it is read, "&" marks removed.
QString withoutMnemonic(const QString &caption);

/// A menu item of an open popup, of the active window with its context menus, or of the main window, by its
/// item name; null without one.
QAction *findAction(const QString &name);

/// Makes the widget's window the active one, as a click on it does.
void bringForward(QWidget *widget);

} // namespace guion
