#include "book.h"

#include "text.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>

#include <stdexcept>

namespace
{

constexpr int pointsOfInch = 72;
/// Everything is laid out in points on the A4 sheet.
constexpr QSizeF sheet(595, 842);
constexpr QRectF body(62, 60, 471, 706);
constexpr double lineOfContents = 13;
constexpr double chapterGap = 7;
constexpr double firstLineOfContents = 40; // below the heading

const QColor ink(0x2c, 0x4a, 0x66);
const QColor soft(0x6b, 0x76, 0x80);

/// A line of the table of contents.
struct Entry {
    QString title;
    int level;
    int page;  ///< of the text, from 0
    int sheet; ///< of the table of contents that it stands on, from 0
    double y;  ///< on that sheet
};

QFont letters(double points, bool bold = false)
{
    QFont font("Liberation Sans");
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

class Book
{
public:
    Book(const std::vector<Chapter> &chapters, const QString &file) : m_writer(file)
    {
        m_writer.setResolution(pointsOfInch);
        m_writer.setPageSize(QPageSize(QPageSize::A4));
        m_writer.setPageMargins({});
        m_writer.setTitle("Sanirell! - Manual del usuario");
        m_text.documentLayout()->setPaintDevice(&m_writer);
        m_text.setDocumentMargin(0);
        QString all;
        for (const Chapter &chapter : chapters)
            all += chapter.markdown + "\n\n";
        dress(m_text, all);
        startChaptersOnPages();
        m_text.setPageSize(body.size());
    }

    void write(const QString &logo)
    {
        if (!m_painter.begin(&m_writer))
            throw std::runtime_error("cannot write the manual");
        paintCover(logo);
        paintContents();
        for (int page = 0; page < m_text.pageCount(); ++page) {
            m_writer.newPage();
            paintPage(page);
        }
        m_painter.end();
    }

private:
    void startChaptersOnPages()
    {
        bool first = true;
        for (QTextBlock block = m_text.begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() != 1)
                continue;
            QTextBlockFormat format;
            if (!first)
                format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            QTextCursor(block).mergeBlockFormat(format);
            first = false;
        }
    }

    /// Chapters and their sections, laid out on as many sheets as they take.
    std::vector<Entry> contents() const
    {
        std::vector<Entry> entries;
        int sheetOfContents = 0;
        double y = body.top() + firstLineOfContents;
        for (QTextBlock block = m_text.begin(); block.isValid(); block = block.next()) {
            const int level = block.blockFormat().headingLevel();
            if (level < 1 || level > 2)
                continue;
            y += level == 1 ? chapterGap : 0;
            if (y + lineOfContents > body.bottom()) {
                ++sheetOfContents;
                y = body.top();
            }
            const double top = m_text.documentLayout()->blockBoundingRect(block).top();
            entries.push_back(
                {block.text(), level, static_cast<int>(top / body.height()), sheetOfContents, y});
            y += lineOfContents;
        }
        return entries;
    }

    void write(const QRectF &box, int flags, const QString &words, const QFont &font, const QColor &colour)
    {
        m_painter.setFont(font);
        m_painter.setPen(colour);
        m_painter.drawText(box, flags, words);
    }

    void paintCover(const QString &logo)
    {
        QSvgRenderer drawing(logo);
        if (!drawing.isValid())
            throw std::runtime_error("cannot read the logo");
        drawing.render(&m_painter, QRectF(sheet.width() / 2 - 70, 200, 140, 140));
        write({0, 360, sheet.width(), 60}, Qt::AlignCenter, "Sanirell!", letters(44, true), ink);
        write({0, 420, sheet.width(), 30}, Qt::AlignCenter, "Manual del usuario", letters(18), soft);
    }

    void paintContents()
    {
        const std::vector<Entry> entries = contents();
        m_frontPages = entries.empty() ? 2 : entries.back().sheet + 2; // the cover, then the contents
        m_writer.newPage();
        write({body.left(), body.top(), body.width(), 30}, Qt::AlignLeft, "Contenido", letters(20, true),
              ink);
        int sheetOfContents = 0;
        for (const Entry &entry : entries) {
            if (entry.sheet != sheetOfContents) {
                m_writer.newPage();
                sheetOfContents = entry.sheet;
            }
            const bool isChapter = entry.level == 1;
            const QRectF row(body.left(), entry.y, body.width(), lineOfContents);
            const QFont font = letters(isChapter ? 10.5 : 9.5, isChapter);
            write(row.adjusted(isChapter ? 0 : 16, 0, 0, 0), Qt::AlignLeft, entry.title, font,
                  isChapter ? ink : soft);
            write(row, Qt::AlignRight, QString::number(entry.page + 1 + m_frontPages), font,
                  isChapter ? ink : soft);
        }
    }

    void paintPage(int page)
    {
        m_painter.save();
        m_painter.translate(body.left(), body.top() - page * body.height());
        const QRectF view(0, page * body.height(), body.width(), body.height());
        m_painter.setClipRect(view);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = view;
        context.palette.setColor(QPalette::Text, Qt::black);
        m_text.documentLayout()->draw(&m_painter, context);
        m_painter.restore();
        const QRectF foot(body.left(), body.bottom() + 18, body.width(), 14);
        write(foot, Qt::AlignLeft, "Sanirell!  Manual del usuario", letters(8.5), soft);
        write(foot, Qt::AlignRight, QString::number(page + 1 + m_frontPages), letters(8.5), soft);
    }

    QPdfWriter m_writer;
    QTextDocument m_text;
    QPainter m_painter;
    int m_frontPages = 0; ///< cover and contents
};

} // namespace

void writeBook(const std::vector<Chapter> &chapters, const QString &logo, const QString &file)
{
    Book(chapters, file).write(logo);
}
