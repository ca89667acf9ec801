#pragma once

#include "platform/reports/reportfile.h"

#include <QPainter>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace reports
{

/// Paper is measured in dots, fine enough that a page reads the same on the screen, in a file and on every
/// printer.
constexpr double dotsPerInch = 600;
constexpr double dots(double millimetres)
{
    return millimetres * dotsPerInch / 25.4;
}

/// A part of a report laid out at a width, in dots. One that is higher than its page is drawn in parts, and
/// no line is cut.
class Block
{
public:
    virtual ~Block() = default;
    virtual double height() const = 0;
    /// How much of what is left from `from` downwards fits in `room`: whole lines, perhaps none.
    virtual double fitting(double from, double room) const = 0;
    /// Draws the part between `from` and `from + height` with its top at `at`.
    virtual void draw(QPainter &painter, QPointF at, double from, double height) const = 0;
    virtual QString text() const = 0; ///< as it is searched
};
using BlockPtr = std::shared_ptr<const Block>;

/// HTML with the report's font and style sheet; pictures are looked for in `folder`.
BlockPtr htmlBlock(const QString &html, const ReportFile &file, double width);

/// Where the columns of a report stand in its width.
class ColumnLayout
{
public:
    ColumnLayout(const ReportFile &file, double width);

    enum class Line { Heading, Row, Striped, Total };
    /// One line of the list with a text for each column; texts that are too long go on below, those of a
    /// line of totals first over the empty columns at their right.
    BlockPtr block(const QStringList &texts, Line line) const;

    struct Shape;

private:
    std::shared_ptr<const Shape> shape_;
};

} // namespace reports
