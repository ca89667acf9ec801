#pragma once

#include <QRectF>
#include <QSizeF>

/// Twips, 1440 to the inch: the unit of the rules on charts, diagrams and sheets. A screen pixel is 15.
namespace forms
{

constexpr double twipsPerPixel = 15.0;

constexpr double toPixels(double twips)
{
    return twips / twipsPerPixel;
}
constexpr double toTwips(double pixels)
{
    return pixels * twipsPerPixel;
}
inline QSizeF toPixels(QSizeF twips)
{
    return twips / twipsPerPixel;
}
inline QRectF toPixels(QRectF r)
{
    return {toPixels(r.x()), toPixels(r.y()), toPixels(r.width()), toPixels(r.height())};
}

} // namespace forms
