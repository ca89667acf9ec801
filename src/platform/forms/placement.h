#pragma once

#include <QWidget>

namespace forms
{

/// Where a window stands and how large it is: never larger than its room, and as the person left it last
/// time, which the settings keep under the window's name.

/// Lets the contents of a window scroll where the room is smaller than they need.
void fitInto(QWidget &window, QSize room);

/// The size that the window had last, within its room; nothing kept gives `natural`.
QSize rememberedSize(const QWidget &window, QSize natural, QSize room);
void rememberSize(const QWidget &window, QSize size);

/// The widths that the person gave the columns of the window's grids.
void restoreColumns(const QWidget &window);
void rememberColumns(const QWidget &window);

/// A place for a frame of this size wholly inside the room, as near as can be to `wanted`.
QPoint placeInside(QPoint wanted, QSize frame, QSize room);

} // namespace forms
