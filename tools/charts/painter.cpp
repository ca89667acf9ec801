#include "painter.h"

#include "ticks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

const QColor paper(0xff, 0xff, 0xff);
const QColor writing(0x33, 0x3d, 0x47);
const QColor softWriting(0x6b, 0x76, 0x80);
const QColor border(0x8a, 0x95, 0xa0);
/// Fine, labelled and whole-year lines.
const std::array<QColor, 3> lines{QColor(0xec, 0xef, 0xf2), QColor(0xd3, 0xda, 0xe0),
                                  QColor(0xbc, 0xc6, 0xcf)};

constexpr double labelHeight = px(10);
constexpr double labelSpacing = px(9.5);

QFont font(double pixels, bool bold = false)
{
    QFont font("Liberation Sans");
    font.setPixelSize(static_cast<int>(px(pixels)));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double widthOf(const QString &text, const QFont &f)
{
    return QFontMetricsF(f).horizontalAdvance(text);
}

struct Label {
    QPointF at; ///< where the curve ends
    QString text;
    bool bold;
};

class SheetPainter
{
public:
    SheetPainter(const Sheet &sheet, const QDir &tables, QPainter &painter)
        : m_sheet(sheet), m_painter(painter)
    {
        for (const Plot &plot : sheet.plots)
            for (const Slice &slice : plot.slices)
                m_curves.push_back({&plot, &slice, readPercentiles(tables, slice, sheet.sex)});
    }

    void paint()
    {
        for (const Plot &plot : m_sheet.plots)
            paintGrid(plot);
        for (const Drawn &drawn : m_curves)
            paintBands(drawn);
        for (const Plot &plot : m_sheet.plots)
            paintSeams(plot);
        for (const Drawn &drawn : m_curves)
            paintCurves(drawn);
        for (const Plot &plot : m_sheet.plots) {
            paintFrame(plot);
            paintAges(plot);
            paintValues(plot);
        }
        paintCurveNames();
        paintTitle();
        paintAcrossTitle();
    }

private:
    struct Drawn {
        const Plot *plot;
        const Slice *slice;
        Percentiles percentiles;
    };

    static QPointF point(const Plot &plot, double across, double value)
    {
        return charts::mapped(plot.frame, across, value);
    }

    static QPainterPath pathOf(const Plot &plot, const Curve &curve)
    {
        return curve.path([&](QPointF p) { return point(plot, p.x(), p.y()); });
    }

    void text(const QRectF &box, int flags, const QString &words, const QFont &f, const QColor &colour)
    {
        m_painter.setFont(f);
        m_painter.setPen(colour);
        m_painter.drawText(box, flags | Qt::TextDontClip, words);
    }

    void line(QPointF from, QPointF to, const QColor &colour, double pixels)
    {
        m_painter.setPen(QPen(colour, px(pixels), Qt::SolidLine, Qt::FlatCap));
        m_painter.drawLine(from, to);
    }

    void paintGrid(const Plot &plot)
    {
        for (int weight = 0; weight < 3; ++weight) {
            for (const Tick &tick : plot.across)
                if (tick.weight == weight)
                    gridLineAcross(plot, tick);
            m_painter.save();
            if (!plot.gridClip.isEmpty())
                m_painter.setClipPath(plot.gridClip);
            for (const Tick &tick : plot.up)
                if (tick.weight == weight)
                    gridLineUp(plot, tick);
            m_painter.restore();
        }
    }

    void gridLineAcross(const Plot &plot, const Tick &tick)
    {
        const double x = std::min(point(plot, tick.at, 0).x(), plot.area.right());
        line({x, plot.area.top()}, {x, plot.area.bottom()}, lines[tick.weight], tick.weight == 2 ? 1 : 0.7);
    }

    void gridLineUp(const Plot &plot, const Tick &tick)
    {
        const double y = point(plot, 0, tick.at).y();
        line({plot.area.left(), y}, {plot.area.right(), y}, lines[tick.weight], tick.weight == 0 ? 0.7 : 1);
    }

    /// The space between the outer percentiles, and between the two about the median, tinted.
    void paintBands(const Drawn &drawn)
    {
        const QStringList &names = drawn.plot->percentiles;
        const auto middle = names.size() / 2;
        m_painter.save();
        m_painter.setClipRect(drawn.plot->area);
        for (const auto reach : {middle, qsizetype(1)}) {
            QPainterPath band = pathOf(*drawn.plot, drawn.percentiles.at(names[middle - reach]));
            band.connectPath(pathOf(*drawn.plot, drawn.percentiles.at(names[middle + reach])).toReversed());
            QColor tint = drawn.plot->ink;
            tint.setAlphaF(0.055F);
            m_painter.fillPath(band, tint);
        }
        m_painter.restore();
    }

    void paintCurves(const Drawn &drawn)
    {
        const QStringList &names = drawn.plot->percentiles;
        m_painter.save();
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setClipRect(drawn.plot->area.adjusted(0, -px(1), px(1), 0));
        for (const QString &name : names) {
            const bool isOuter = name == names.front() || name == names.back();
            const double pixels = name == "P50" ? 1.7 : isOuter ? 1.25 : 0.9;
            m_painter.setPen(QPen(drawn.plot->ink, px(pixels), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            m_painter.drawPath(pathOf(*drawn.plot, drawn.percentiles.at(name)));
        }
        m_painter.restore();
    }

    /// Where one reference ends and the next begins, told at the foot of the plot.
    void paintSeams(const Plot &plot)
    {
        for (std::size_t i = 1; i < plot.slices.size(); ++i) {
            const double x = point(plot, plot.slices[i].from, 0).x();
            if (x < plot.area.left() + px(4) || x > plot.area.right() - px(4))
                continue;
            m_painter.setPen(QPen(softWriting, px(0.8), Qt::DashLine, Qt::FlatCap));
            m_painter.drawLine(QPointF(x, plot.area.top()), QPointF(x, plot.area.bottom()));
            const double left = std::max(plot.area.left(), point(plot, plot.slices[i - 1].from, 0).x());
            const double right = std::min(plot.area.right(), point(plot, plot.slices[i].to, 0).x());
            if (i == 1)
                paintSeamCaption(plot, plot.slices[i - 1].caption, x, x - left, Qt::AlignRight);
            paintSeamCaption(plot, plot.slices[i].caption, x, right - x, Qt::AlignLeft);
        }
    }

    void paintSeamCaption(const Plot &plot, const QString &caption, double x, double room,
                          Qt::AlignmentFlag side)
    {
        const QFont f = font(9);
        const double width = widthOf(caption, f);
        if (caption.isEmpty() || width + px(8) > room)
            return;
        const double left = side == Qt::AlignRight ? x - width - px(4) : x + px(4);
        const QRectF box(left, plot.area.bottom() - px(17), width, px(12));
        m_painter.fillRect(box.adjusted(-px(2), 0, px(2), 0), paper);
        text(box, Qt::AlignCenter, caption, f, softWriting);
    }

    void paintFrame(const Plot &plot)
    {
        m_painter.setPen(QPen(border, px(1)));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(plot.area);
    }

    void paintAges(const Plot &plot)
    {
        double taken = plot.area.left() - px(20);
        for (const Tick &tick : plot.across) {
            if (tick.label.isEmpty())
                continue;
            const double x = std::min(point(plot, tick.at, 0).x(), plot.area.right());
            const QFont f = font(10, tick.weight == 2);
            const double half = widthOf(tick.label, f) / 2;
            if (x < plot.area.left() - px(1) || x - half < taken)
                continue;
            line({x, plot.area.bottom()}, {x, plot.area.bottom() + px(3)}, border, 1);
            text({x - px(30), plot.area.bottom() + px(3.5), px(60), px(12)}, Qt::AlignHCenter | Qt::AlignTop,
                 tick.label, f, writing);
            taken = x + half + px(2);
        }
    }

    void paintValues(const Plot &plot)
    {
        const QRectF &area = plot.area;
        const QFont f = font(10);
        for (const Tick &tick : plot.up) {
            const double y = point(plot, 0, tick.at).y();
            const auto isHere = [&](double x) {
                return plot.gridClip.isEmpty() || plot.gridClip.contains(QPointF(x, y));
            };
            if (tick.label.isEmpty())
                continue;
            if (isHere(area.left() + 1))
                text({area.left() - px(54), y - px(6), px(50), px(12)}, Qt::AlignRight | Qt::AlignVCenter,
                     tick.label, f, writing);
            if (plot.valuesAtRight && isHere(area.right() - 1))
                text({area.right() + px(2), y - px(6), px(20), px(12)}, Qt::AlignLeft | Qt::AlignVCenter,
                     tick.label, font(8), softWriting);
        }
        paintUpTitle(plot);
    }

    /// Turned along the axis of the values, beside the part of it that is this plot's own.
    void paintUpTitle(const Plot &plot)
    {
        double top = plot.area.top();
        double bottom = plot.area.bottom();
        if (!plot.gridClip.isEmpty()) {
            const auto isOwn = [&](double y) {
                return plot.gridClip.contains(QPointF(plot.area.left() + 1, y));
            };
            while (top < bottom && !isOwn(top))
                top += px(1);
            while (bottom > top && !isOwn(bottom))
                bottom -= px(1);
        }
        const double room = std::min(plot.area.left() - px(22), px(26));
        m_painter.save();
        m_painter.translate(plot.area.left() - px(22) - room / 2, (top + bottom) / 2);
        m_painter.rotate(-90);
        text({-px(150), -px(8), px(300), px(16)}, Qt::AlignCenter, plot.upTitle,
             font(plot.gridClip.isEmpty() ? 10.5 : 9.5, !plot.gridClip.isEmpty()),
             plot.gridClip.isEmpty() ? writing : plot.ink);
        m_painter.restore();
    }

    /// The name of every percentile, where its curve leaves the plot: at the right edge, or at the top.
    void paintCurveNames()
    {
        std::vector<Label> atRight;
        for (const Drawn &drawn : m_curves) {
            if (!drawn.plot->namesCurves || drawn.slice != &drawn.plot->slices.back())
                continue;
            for (const QString &name : drawn.plot->percentiles) {
                const Curve &curve = drawn.percentiles.at(name);
                const double across =
                    std::min(curve.last(), charts::acrossAt(drawn.plot->frame, drawn.plot->area.right()));
                const QPointF end = point(*drawn.plot, across, curve.at(across));
                if (end.y() < drawn.plot->area.top() - px(2))
                    paintNameAtTop(*drawn.plot, curve, name);
                else
                    atRight.push_back({{drawn.plot->area.right(), end.y()}, name, name == "P50"});
            }
        }
        paintNamesAtRight(std::move(atRight));
    }

    void paintNameAtTop(const Plot &plot, const Curve &curve, const QString &name)
    {
        const double top = charts::valueAt(plot.frame, plot.area.top());
        double across = charts::acrossAt(plot.frame, plot.area.right());
        while (curve.at(across) > top)
            across -= 1;
        const double x = point(plot, across, 0).x();
        text({x - px(20), plot.area.top() - px(13), px(40), px(12)}, Qt::AlignCenter, name, font(9.5),
             writing);
    }

    void paintNamesAtRight(std::vector<Label> labels)
    {
        if (labels.empty())
            return;
        std::ranges::sort(labels, {}, [](const Label &label) { return label.at.y(); });
        const bool besideValues = std::ranges::any_of(m_sheet.plots, &Plot::valuesAtRight);
        const double gap = px(besideValues ? 13 : 8);
        const std::vector<double> places = spread(labels);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const QPointF from = labels[i].at + QPointF(px(besideValues ? 0 : 1.5), 0);
            const QPointF to(labels[i].at.x() + gap - px(1.5), places[i]);
            if (!besideValues)
                line(from, to, softWriting, 0.6);
            text({labels[i].at.x() + gap, places[i] - labelHeight / 2, px(30), labelHeight},
                 Qt::AlignLeft | Qt::AlignVCenter, labels[i].text,
                 font(besideValues ? 8.5 : 9.5, labels[i].bold), writing);
        }
    }

    /// Heights for the labels (sorted from the top) near where they belong, none upon another: labels that
    /// would overlap share the middle of their places.
    static std::vector<double> spread(const std::vector<Label> &labels)
    {
        struct Group {
            double sum;
            int count;
            double middle() const { return sum / count; }
            double half() const { return count * labelSpacing / 2; }
        };
        std::vector<Group> groups;
        for (const Label &label : labels) {
            groups.push_back({label.at.y(), 1});
            while (groups.size() > 1 &&
                   groups.back().middle() - groups.back().half() <
                       groups[groups.size() - 2].middle() + groups[groups.size() - 2].half()) {
                const Group last = groups.back();
                groups.pop_back();
                groups.back().sum += last.sum;
                groups.back().count += last.count;
            }
        }
        std::vector<double> places;
        for (const Group &group : groups)
            for (int i = 0; i < group.count; ++i)
                places.push_back(group.middle() - group.half() + (i + 0.5) * labelSpacing);
        return places;
    }

    void paintTitle()
    {
        switch (m_sheet.titlePlace) {
        case TitlePlace::AboveThePlot:
            return paintTitleAbove();
        case TitlePlace::InThePlot:
            return paintTitleIn(m_sheet.plots.front().area.topLeft() + QPointF(px(10), px(10)), true);
        case TitlePlace::BesideThePlot:
            return paintTitleIn(QPointF(px(8), m_sheet.plots.front().area.top()), false);
        }
    }

    void paintTitleAbove()
    {
        const QRectF &area = m_sheet.plots.front().area;
        const QRectF band(area.left(), 0, area.width(), area.top() - px(2));
        const QFont bold = font(13, true);
        const double width = widthOf(m_sheet.title, bold);
        text(band, Qt::AlignLeft | Qt::AlignVCenter, m_sheet.title, bold, m_sheet.plots.front().ink);
        text(band.adjusted(width + px(10), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, m_sheet.subtitle,
             font(12), writing);
        text(band, Qt::AlignRight | Qt::AlignVCenter, m_sheet.source, font(10), softWriting);
    }

    void paintTitleIn(QPointF corner, bool onGrid)
    {
        const QFont bold = font(13, true);
        const QFont plain = font(11);
        const QFont small = font(9);
        const QStringList sources = m_sheet.source.split(u'\n');
        double width = std::max(widthOf(m_sheet.title, bold), widthOf(m_sheet.subtitle, plain));
        for (const QString &source : sources)
            width = std::max(width, widthOf(source, small));
        if (onGrid)
            m_painter.fillRect(QRectF(corner, QSizeF(width + px(12), px(42 + 11.0 * double(sources.size())))),
                               paper);
        corner += QPointF(onGrid ? px(6) : 0, px(4));
        const auto row = [&](double height) {
            const QRectF box(corner, QSizeF(width, px(height)));
            corner.ry() += px(height);
            return box;
        };
        const QColor &ink = onGrid ? m_sheet.plots.front().ink : writing;
        text(row(17), Qt::AlignLeft | Qt::AlignVCenter, m_sheet.title, bold, ink);
        text(row(17), Qt::AlignLeft | Qt::AlignVCenter, m_sheet.subtitle, plain, writing);
        for (const QString &source : sources)
            text(row(11), Qt::AlignLeft | Qt::AlignVCenter, source, small, softWriting);
    }

    /// Under the ages where there is room, else in the plot, in the corner that no curve reaches.
    void paintAcrossTitle()
    {
        const QRectF area = m_sheet.plots.front().area.united(m_sheet.plots.back().area);
        const QFont f = font(10.5);
        const double width = widthOf(m_sheet.acrossTitle, f);
        if (m_sheet.size.height() - area.bottom() >= px(31)) {
            text({area.left(), area.bottom() + px(17), area.width(), px(13)}, Qt::AlignCenter,
                 m_sheet.acrossTitle, f, writing);
            return;
        }
        const QRectF box(area.right() - width - px(12), area.bottom() - px(19), width + px(6), px(14));
        m_painter.fillRect(box, paper);
        text(box, Qt::AlignCenter, m_sheet.acrossTitle, f, writing);
    }

    const Sheet &m_sheet;
    QPainter &m_painter;
    std::vector<Drawn> m_curves;
};

} // namespace

QImage paint(const Sheet &sheet, const QDir &tables)
{
    const QSizeF pixels = sheet.size / px(1) * sharpness;
    QImage image(pixels.toSize(), QImage::Format_RGB32);
    image.fill(paper);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(sharpness / px(1), sharpness / px(1));
    SheetPainter(sheet, tables, painter).paint();
    return image;
}
