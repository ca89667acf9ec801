#include "paediatrics/charts/mapping.h"

namespace charts
{

QPointF mapped(const Frame &frame, double across, double value)
{
    const double x = across * frame.box.width() / frame.fullWidth;
    const double y = value * frame.box.height() / frame.fullHeight;
    return {frame.box.left() + x, frame.box.top() + frame.box.height() - y};
}

double acrossAt(const Frame &frame, double x)
{
    return (x - frame.box.left()) * frame.fullWidth / frame.box.width();
}

double valueAt(const Frame &frame, double y)
{
    return (frame.box.top() + frame.box.height() - y) * frame.fullHeight / frame.box.height();
}

} // namespace charts
