#pragma once

#include "guion/windows.h"

#include <QPoint>
#include <QString>
#include <QWidget>

/// What hands do: mouse and keys, sent to the widgets as the window system sends them.
namespace guion
{

enum class Click { Single, Double, Right };
void click(QWidget *widget, Click kind);
void click(const Target &target, Click kind);
void clickAt(QWidget *widget, QPoint place, Click kind = Click::Single, Qt::KeyboardModifiers keys = {});
/// Takes hold of the middle of `source`, moves and lets go at a place of `target`, in twips from its corner.
void drag(const Target &source, const Target &target, QPointF twips);

/// Gives the widget the focus. Throws Failure when it takes none.
void focus(QWidget *widget);
/// Types into whatever has the focus; a line feed is the Enter key.
void typeInto(QWidget *widget, const QString &text);
/// Replaces what the field holds. Throws Failure when the widget is no field, or is read-only.
void replaceText(QWidget *field, const QString &text);
void leave(QWidget *field);
/// One key by its name: "Esc", "F1", "Space", "Ctrl+S", "a". Throws Failure on an unknown one.
void pressKey(const QString &name);

} // namespace guion
