#pragma once

#include <QPointF>
#include <QRectF>

/// The linear mapping of a measure onto a growth chart. The plotter and the maker of the chart pictures both
/// go through it, so a child's point cannot stray from the printed curves.
namespace charts
{

/// The calibration of a chart: `box` (twips, in the coordinates the points are drawn in) whose left edge
/// stands for 0 across, whose full width for `fullWidth`, whose bottom edge for the value 0 and whose full
/// height for `fullHeight`. The box may run outside the picture.
struct Frame {
    QRectF box;
    double fullWidth;  ///< days of age; centimetres in the charts of weight for height
    double fullHeight; ///< in the measure's stored unit
};

/// The point (twips) of a measure; nothing is clipped: ages and values beyond the frame fall outside it.
QPointF mapped(const Frame &frame, double across, double value);

/// What a place across (twips) stands for, and what a place in height does.
double acrossAt(const Frame &frame, double x);
double valueAt(const Frame &frame, double y);

} // namespace charts
