#pragma once

#include "platform/richtext/headtables.h"
#include "platform/richtext/looks.h"
#include "platform/richtext/picturegroup.h"

#include <QTextCursor>

#include <map>

class QTextList;

namespace richtext
{

/// Puts what a reader finds into a document: texts, paragraphs with their lists, pictures.
class Builder
{
public:
    Builder(QTextDocument &document, const HeadTables &tables)
        : document_(document), tables_(tables), cursor_(&document)
    {
    }

    void text(const QString &text, const Letters &letters, const Paragraph &paragraph);
    void endParagraph(const Letters &letters, const Paragraph &paragraph);
    /// The line that a table's row is: a tab stands between two cells, none behind the last one.
    void endRow(const Letters &letters, const Paragraph &paragraph);
    /// False for a picture that cannot be shown.
    bool picture(const PictureGroup &picture, const Letters &letters, const Paragraph &paragraph);
    void finish();

private:
    void flush();
    void openParagraph(const Letters &letters);
    void dress(const Paragraph &paragraph);
    void joinList(const Paragraph &paragraph, QTextListFormat::Style style);
    std::optional<QTextListFormat::Style> bulletOf(const Paragraph &paragraph) const;

    QTextDocument &document_;
    const HeadTables &tables_;
    QTextCursor cursor_;
    QString pending_; ///< text that looks alike, not yet in the document
    Letters pendingLetters_;
    Paragraph lastParagraph_; ///< as it was at the last text
    bool paragraphEnded_ = false;
    QTextList *list_ = nullptr; ///< of the paragraph before
    std::map<std::pair<int, int>, QTextList *> openLists_;
};

} // namespace richtext
