#pragma once

#include <QColor>
#include <QPoint>
#include <QRectF>
#include <QString>

#include <vector>

class QWidget;

namespace forms
{

/// An item that a widget draws itself, as a person sees it: a marker of a chart, the face of a tooth, a
/// stamp.
struct DrawnItem {
    QString name; ///< as a control's, with the index of an array in parentheses
    QRectF place; ///< twips, in the coordinates of the drawing
    QString caption = {};
    QString toolTip = {};
    QString tag = {};
    QColor backColor = {};
    QColor foreColor = {};
    bool visible = true;
    bool enabled = true;
};

/// A widget that draws items of its own. Whoever reads the screen for others, or operates it as a person
/// does, finds them here.
class Drawn
{
public:
    virtual ~Drawn() = default;
    /// All items, the hindmost first.
    virtual std::vector<DrawnItem> drawnItems() const = 0;
    /// A place of the drawing (twips) where a click meets the item.
    virtual QPointF grip(const DrawnItem &item) const { return item.place.center(); }
    /// The widget that takes the mouse for the drawing.
    virtual QWidget &surface() = 0;
    /// Scrolls until the place of the drawing (twips) is in sight; where it lies on the surface.
    virtual QPoint reveal(QPointF twips) = 0;
};

} // namespace forms
