#include "platform/reports/block.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

constexpr double cellSide = dots(0.8), cellAbove = dots(0.45), cellBelow = dots(0.45), ruleWidth = dots(0.2);
const QColor ruleColour(0x60, 0x68, 0x70), stripeColour(0xf1, 0xf4, 0xf7);

/// Stands for paper when texts are measured.
QPaintDevice &paper()
{
    static QImage image = [] {
        QImage one(1, 1, QImage::Format_RGB32);
        one.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
        one.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        return one;
    }();
    return image;
}

QFont inDots(QFont font)
{
    font.setPixelSize(qRound(font.pointSizeF() * dotsPerInch / 72));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

class HtmlBlock : public Block
{
public:
    HtmlBlock(const QString &html, const ReportFile &file, double width)
    {
        document_.setUndoRedoEnabled(false);
        document_.documentLayout()->setPaintDevice(&paper());
        document_.setDocumentMargin(0);
        QFont font = file.font;
        font.setHintingPreference(QFont::PreferNoHinting);
        document_.setDefaultFont(font);
        if (!file.style.isEmpty())
            document_.setDefaultStyleSheet(file.style);
        document_.setMetaInformation(
            QTextDocument::DocumentUrl,
            QUrl::fromLocalFile(QFileInfo(file.path).absolutePath() + u'/').toString());
        document_.setHtml(html);
        document_.setTextWidth(width);
        // The document leaves out the margins above its first and below its last paragraph.
        const QTextFrame *root = document_.rootFrame();
        above_ = inPaper(root->begin().currentBlock().blockFormat().topMargin());
        height_ = above_ + document_.size().height() +
                  inPaper((--root->end()).currentBlock().blockFormat().bottomMargin());
    }

    double height() const override { return height_; }

    double fitting(double from, double room) const override
    {
        if (height_ - from <= room)
            return height_ - from;
        double end = from + room;
        // A line that the end would cut moves it above; that may cut another one, of a cell beside.
        for (bool moved = true; moved && end > from;) {
            moved = false;
            for (const auto &[top, bottom] : lines())
                if (top < end - 0.5 && bottom > end + 0.5) {
                    end = top;
                    moved = true;
                }
        }
        return qMax(0.0, end - from);
    }

    void draw(QPainter &painter, QPointF at, double from, double height) const override
    {
        painter.save();
        painter.translate(at.x(), at.y() + above_ - from);
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = QRectF(0, from - above_, document_.textWidth(), height);
        painter.setClipRect(context.clip, Qt::IntersectClip);
        document_.documentLayout()->draw(&painter, context);
        painter.restore();
    }

    QString text() const override { return document_.toPlainText(); }

private:
    /// A margin without a unit is in the screen's dots.
    static double inPaper(double screenDots) { return screenDots * dotsPerInch / 96; }

    using Span = std::pair<double, double>;
    const std::vector<Span> &lines() const
    {
        if (!lines_.empty())
            return lines_;
        for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
            const double top = above_ + document_.documentLayout()->blockBoundingRect(block).top();
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                const QRectF line = block.layout()->lineAt(i).rect();
                lines_.emplace_back(top + line.top(), top + line.bottom());
            }
        }
        return lines_;
    }

    QTextDocument document_;
    double above_ = 0; ///< the first paragraph's margin
    double height_ = 0;
    mutable std::vector<Span> lines_;
};

/// A font with the widths of the letters that most texts are made of.
class Measured
{
public:
    explicit Measured(const QFont &font) : font_(font), metrics_(font)
    {
        for (std::size_t i = 0; i < widths_.size(); ++i)
            widths_[i] = metrics_.horizontalAdvance(QChar(static_cast<char16_t>(i)));
    }

    const QFont &font() const { return font_; }
    double lineHeight() const { return metrics_.lineSpacing(); }
    double ascent() const { return metrics_.ascent(); }
    double width(const QString &text) const { return metrics_.horizontalAdvance(text); }

    QStringList wrapped(const QString &text, double room) const
    {
        QStringList lines;
        for (const QString &paragraph : text.split(u'\n'))
            if (!wrapByLetters(paragraph, room, lines))
                wrapShaped(paragraph, room, lines);
        return lines;
    }

private:
    /// No less than the width, told without shaping the text; nothing for a letter that was not measured.
    std::optional<double> atMost(QStringView text) const
    {
        double sum = 0;
        for (const QChar c : text) {
            if (c < u' ' || c.unicode() >= widths_.size())
                return std::nullopt;
            sum += widths_[c.unicode()];
        }
        return sum * 1.01;
    }

    /// As most cells can be, quickly; false where a word needs more.
    bool wrapByLetters(const QString &paragraph, double room, QStringList &lines) const
    {
        const std::optional<double> whole = atMost(paragraph);
        if (!whole)
            return false;
        if (*whole <= room) {
            lines += paragraph;
            return true;
        }
        QStringList own(1);
        double used = 0;
        for (const QString &word : paragraph.split(u' ', Qt::SkipEmptyParts)) {
            const double width = *atMost(word), blank = own.last().isEmpty() ? 0 : *atMost(u" ");
            if (width > room)
                return false;
            if (used + blank + width > room) {
                own += word;
                used = width;
                continue;
            }
            own.last() += blank > 0 ? u' ' + word : word;
            used += blank + width;
        }
        lines += own;
        return true;
    }

    void wrapShaped(const QString &paragraph, double room, QStringList &lines) const
    {
        QTextLayout layout(paragraph, font_);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(qMax(room, 1.0));
            lines += paragraph.sliced(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }

    QFont font_;
    QFontMetricsF metrics_;
    std::array<double, 256> widths_{};
};

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

struct ColumnLayout::Shape {
    struct Place {
        double left, width;
        Qt::Alignment alignment;
        bool bold;
    };
    double width;
    Measured normal, strong;
    std::vector<Place> places;
};

/// A line of the list. The lines of its cells are of one height, so that it can be cut below any of them.
class LineBlock : public Block
{
public:
    LineBlock(std::shared_ptr<const ColumnLayout::Shape> shape, const QStringList &texts,
              ColumnLayout::Line line)
        : shape_(std::move(shape)), line_(line)
    {
        for (std::size_t i = 0; i < shape_->places.size(); ++i) {
            const QString text = texts.value(static_cast<qsizetype>(i));
            if (text.isEmpty())
                continue;
            Cell cell{i, shape_->places[i], {}};
            if (line == ColumnLayout::Line::Total)
                spread(cell, texts);
            cell.lines = font(i).wrapped(text, cell.place.width - 2 * cellSide);
            lines_ = qMax(lines_, cell.lines.size());
            cells_.push_back(std::move(cell));
        }
    }

    double height() const override
    {
        return cellAbove + static_cast<double>(lines_) * lineHeight() + cellBelow;
    }

    double fitting(double from, double room) const override
    {
        if (height() - from <= room)
            return height() - from;
        const double wholeLines = std::floor((from + room - cellAbove) / lineHeight());
        return wholeLines < 1 ? 0 : qMax(0.0, cellAbove + wholeLines * lineHeight() - from);
    }

    void draw(QPainter &painter, QPointF at, double from, double height) const override
    {
        const QRectF whole(at.x(), at.y(), shape_->width, height);
        if (line_ == ColumnLayout::Line::Striped)
            painter.fillRect(whole, stripeColour);
        painter.setPen(Qt::black);
        for (const Cell &cell : cells_)
            drawCell(painter, cell, at, from, height);
        painter.setPen(QPen(ruleColour, ruleWidth));
        if (line_ == ColumnLayout::Line::Heading)
            painter.drawLine(whole.bottomLeft(), whole.bottomRight());
        if (line_ == ColumnLayout::Line::Total)
            painter.drawLine(whole.topLeft(), whole.topRight());
    }

    QString text() const override
    {
        QStringList texts(static_cast<qsizetype>(shape_->places.size()));
        for (const Cell &cell : cells_)
            texts[static_cast<qsizetype>(cell.column)] = cell.lines.join(u' ');
        return texts.join(u'\t');
    }

private:
    struct Cell {
        std::size_t column;
        ColumnLayout::Shape::Place place;
        QStringList lines;
    };

    /// A text that has empty columns at its right goes on over them.
    void spread(Cell &cell, const QStringList &texts) const
    {
        for (std::size_t i = cell.column + 1; i < shape_->places.size(); ++i) {
            if (!texts.value(static_cast<qsizetype>(i)).isEmpty())
                return;
            cell.place.width += shape_->places[i].width;
            cell.place.alignment = Qt::AlignLeft;
        }
    }

    double lineHeight() const { return shape_->normal.lineHeight(); }
    const Measured &font(std::size_t column) const
    {
        const bool strong = line_ == ColumnLayout::Line::Heading || line_ == ColumnLayout::Line::Total;
        return strong || shape_->places[column].bold ? shape_->strong : shape_->normal;
    }

    void drawCell(QPainter &painter, const Cell &cell, QPointF at, double from, double height) const
    {
        const Measured &measured = font(cell.column);
        const ColumnLayout::Shape::Place &place = cell.place;
        painter.setFont(measured.font());
        double top = cellAbove - from;
        for (const QString &line : cell.lines) {
            if (top > -1 && top + lineHeight() < height + 1) {
                const double spare =
                    place.alignment & Qt::AlignLeft ? 0 : place.width - 2 * cellSide - measured.width(line);
                const double left =
                    place.left + cellSide + (place.alignment & Qt::AlignHCenter ? spare / 2 : spare);
                painter.drawText(QPointF(at.x() + left, at.y() + top + measured.ascent()), line);
            }
            top += lineHeight();
        }
    }

    std::shared_ptr<const ColumnLayout::Shape> shape_;
    ColumnLayout::Line line_;
    std::vector<Cell> cells_; ///< those with a text
    qsizetype lines_ = 1;
};

BlockPtr htmlBlock(const QString &html, const ReportFile &file, double width)
{
    return std::make_shared<HtmlBlock>(html, file, width);
}

ColumnLayout::ColumnLayout(const ReportFile &file, double width)
{
    auto shape = std::make_shared<Shape>(
        Shape{width, Measured(inDots(file.font)), Measured(bold(inDots(file.font))), {}});
    double fixed = 0;
    int sharing = 0;
    for (const Column &column : file.columns) {
        fixed += dots(column.width);
        sharing += column.width == 0;
    }
    // Columns that the page cannot hold shrink together; those without a width keep a share of it.
    const double least = sharing * dots(10);
    const double scale = fixed + least > width ? qMax(0.0, width - least) / fixed : 1;
    const double share = sharing ? qMax(dots(10), (width - fixed * scale) / sharing) : 0;
    double left = 0;
    for (const Column &column : file.columns) {
        const double own = column.width == 0 ? share : dots(column.width) * scale;
        shape->places.push_back({left, own, column.alignment, column.bold});
        left += own;
    }
    shape_ = std::move(shape);
}

BlockPtr ColumnLayout::block(const QStringList &texts, Line line) const
{
    return std::make_shared<LineBlock>(shape_, texts, line);
}

} // namespace reports
