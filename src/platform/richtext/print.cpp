#include "platform/richtext/print.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

#include <memory>

namespace richtext
{

namespace
{

constexpr double marginMm = 15, mmPerInch = 25.4;
constexpr double screenDots = 96; // an inch has so many of those in which pictures are measured

/// The pictures that are broader than `room`, in dots of the screen, get its breadth.
void shrinkPictures(QTextDocument &document, double room)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (!picture.isValid() || picture.width() <= room)
                continue;
            picture.setHeight(picture.height() * room / picture.width());
            picture.setWidth(room);
            QTextCursor cursor(&document);
            cursor.setPosition(part.fragment().position());
            cursor.setPosition(part.fragment().position() + part.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.setCharFormat(picture);
        }
}

} // namespace

void print(const QTextDocument &document, const printing::Choice &choice, const QString &name)
{
    printing::Job job(choice, name, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
    const QSizeF sheet(job.device().width(), job.device().height());
    const double margin = marginMm / mmPerInch * job.device().logicalDpiX();
    const std::unique_ptr<QTextDocument> pages(document.clone());
    shrinkPictures(*pages, (sheet.width() - 2 * margin) / job.device().logicalDpiX() * screenDots);
    pages->documentLayout()->setPaintDevice(&job.device());
    pages->setDocumentMargin(0);
    QTextFrameFormat frame = pages->rootFrame()->frameFormat();
    frame.setMargin(marginMm / mmPerInch * screenDots);
    pages->rootFrame()->setFrameFormat(frame);
    pages->setPageSize(sheet);

    QAbstractTextDocumentLayout::PaintContext look;
    look.palette.setColor(QPalette::Text, Qt::black);
    for (int page = 0; page < pages->pageCount(); ++page) {
        if (page > 0)
            job.newPage();
        QPainter &painter = job.painter();
        painter.save();
        painter.translate(0, -page * sheet.height());
        look.clip = QRectF(QPointF(0, page * sheet.height()), sheet);
        painter.setClipRect(look.clip);
        pages->documentLayout()->draw(&painter, look);
        painter.restore();
    }
    job.finish();
}

} // namespace richtext
