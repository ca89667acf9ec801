#include "platform/forms/richtextbox.h"

#include "platform/basic/cleantext.h"
#include "platform/basic/typed.h"
#include "platform/richtext/pictures.h"

#include <QBuffer>
#include <QImage>
#include <QMimeData>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextList>

namespace forms
{

RichTextBox::RichTextBox(const QString &name)
{
    setObjectName(name);
    setTabChangesFocus(true);
    setAcceptRichText(true);
}

void RichTextBox::setBold(bool bold)
{
    setFontWeight(bold ? QFont::Bold : QFont::Normal);
}

QTextListFormat::Style RichTextBox::listStyle() const
{
    const QTextList *list = textCursor().currentList();
    return list ? list->format().style() : QTextListFormat::ListStyleUndefined;
}

void RichTextBox::setList(QTextListFormat::Style style)
{
    QTextCursor cursor = textCursor();
    if (style != QTextListFormat::ListStyleUndefined) {
        cursor.createList(style);
        return;
    }
    cursor.beginEditBlock();
    const QTextBlock last = document()->findBlock(cursor.selectionEnd());
    for (QTextBlock block = document()->findBlock(cursor.selectionStart()); block.isValid();
         block = block.next()) {
        if (QTextList *list = block.textList())
            list->remove(block);
        if (block == last)
            break;
    }
    QTextBlockFormat without;
    without.setIndent(0);
    cursor.mergeBlockFormat(without); // leaving a list keeps its indent
    cursor.endEditBlock();
}

bool RichTextBox::findTyped(const QString &typed)
{
    const QString text = toPlainText();
    qsizetype place = basic::indexOfTyped(text, typed, textCursor().selectionEnd());
    if (place < 0)
        place = basic::indexOfTyped(text, typed);
    if (place < 0 || typed.isEmpty())
        return false;
    QTextCursor found(document());
    found.setPosition(static_cast<int>(place));
    found.setPosition(static_cast<int>(place + typed.size()), QTextCursor::KeepAnchor);
    setTextCursor(found);
    return true;
}

bool RichTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasImage() || QTextEdit::canInsertFromMimeData(source);
}

void RichTextBox::insertFromMimeData(const QMimeData *source)
{
    if (!source->hasHtml() && source->hasImage() && insertPicture(*source))
        return;
    if (source->hasHtml()) {
        if (!insertPiece(source->html()))
            QTextEdit::insertFromMimeData(source);
    } else if (source->hasText())
        insertPlainText(basic::cleanText(source->text()));
}

/// What is pasted of one paragraph goes into the paragraph where it is pasted, as words and no list or
/// paragraph of their own.
bool RichTextBox::insertPiece(const QString &html)
{
    QTextDocument piece;
    piece.setHtml(html);
    QTextBlock only = piece.begin();
    for (QTextBlock block = only; block.isValid(); block = block.next()) {
        if (block.length() <= 1)
            continue;
        if (only.length() > 1 && only != block)
            return false;
        only = block;
    }
    if (!piece.rootFrame()->childFrames().isEmpty())
        return false;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    for (auto part = only.begin(); !part.atEnd(); ++part)
        cursor.insertText(basic::cleanText(part.fragment().text()), part.fragment().charFormat());
    cursor.endEditBlock();
    return true;
}

bool RichTextBox::insertPicture(const QMimeData &source)
{
    QByteArray file;
    QBuffer buffer(&file);
    const bool written = source.imageData().value<QImage>().save(&buffer, "PNG");
    const auto format = written ? richtext::addPicture(*document(), file) : std::nullopt;
    if (format)
        textCursor().insertImage(*format);
    return format.has_value();
}

} // namespace forms

#include "moc_richtextbox.cpp"
