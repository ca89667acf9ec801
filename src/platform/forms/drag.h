#pragma once

#include <QPointF>

#include <functional>

class QWidget;

/// Dragging controls with the mouse: stamps from a palette onto a diagram, elements about a sheet.
namespace forms
{

struct Drop {
    QWidget &source;
    QPointF point; ///< of the mouse within the target, in twips
    QPointF grip;  ///< where the source was taken hold of, in twips from its top left corner
};

/// Lets the person drag the control. A press without a move stays a click.
void makeDraggable(QWidget &control);
/// `dropped` runs when a draggable control is let go over `target`, or over a control that stands on it and
/// is no target of its own.
void acceptDrops(QWidget &target, std::function<void(const Drop &)> dropped);

} // namespace forms
