#include "text.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

namespace
{

const QColor headingInk(0x1e, 0x76, 0x69);
const QColor tableLine(0xbc, 0xc6, 0xcf);
const QColor tableHead(0xe3, 0xf1, 0xef);

void dressHeading(QTextCursor cursor, int level)
{
    QTextCharFormat letters;
    letters.setForeground(headingInk);
    letters.setFontWeight(QFont::Bold);
    letters.setFontPointSize(level == 1 ? 20 : 14);
    cursor.select(QTextCursor::BlockUnderCursor);
    // Replaced, not merged: the relative size that Markdown gives a heading would win over the size in
    // points.
    cursor.setCharFormat(letters);
    QTextBlockFormat block;
    block.setTopMargin(level == 1 ? 0 : 16);
    block.setBottomMargin(6);
    cursor.mergeBlockFormat(block);
}

void dressParagraph(const QTextBlock &block)
{
    QTextBlockFormat format;
    format.setLineHeight(110, QTextBlockFormat::ProportionalHeight);
    const bool isCell = QTextCursor(block).currentTable() != nullptr;
    const double margin = isCell ? 0 : block.textList() ? 2 : 6;
    format.setTopMargin(margin);
    format.setBottomMargin(margin);
    QTextCursor(block).mergeBlockFormat(format);
}

void dressTable(QTextTable *table)
{
    QTextTableFormat format = table->format();
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(tableLine);
    format.setCellPadding(3);
    format.setTopMargin(8);
    format.setBottomMargin(10);
    format.setHeaderRowCount(1);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    table->setFormat(format);
    for (int column = 0; column < table->columns(); ++column) {
        QTextTableCell cell = table->cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(tableHead);
        cell.setFormat(head);
    }
}

} // namespace

void dress(QTextDocument &document, const QString &markdown)
{
    document.setDefaultFont(QFont("Liberation Sans", 10));
    // Captions such as <No> are text, not HTML.
    document.setMarkdown(markdown, QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) |
                                       QTextDocument::MarkdownNoHTML);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (const int level = block.blockFormat().headingLevel(); level > 0)
            dressHeading(QTextCursor(block), level);
        else
            dressParagraph(block);
    for (QTextFrame *frame : document.rootFrame()->childFrames())
        if (auto *table = qobject_cast<QTextTable *>(frame))
            dressTable(table);
}
