#pragma once

#include "platform/richtext/richtext.h"

#include <QTextEdit>
#include <QTextListFormat>

namespace forms
{

/// A text with its looks: letters, alignment, lists and pictures. What a person chooses applies to what is
/// selected, or to what is typed next; each change can be undone.
class RichTextBox : public QTextEdit
{
    Q_OBJECT
public:
    explicit RichTextBox(const QString &name);

    /// Throws basic::Error for a file beyond sense.
    richtext::Reading setRtf(const QByteArray &file) { return richtext::read(file, *document()); }
    QByteArray rtf() const { return richtext::write(*document()); }

    void setBold(bool bold);
    /// The paragraphs become items of a list, or, with ListStyleUndefined, no longer are.
    void setList(QTextListFormat::Style style);
    QTextListFormat::Style listStyle() const; ///< of the current paragraph

    /// Selects the next place, from the selection on and then from the beginning, where the text that a
    /// person typed stands; false when it stands nowhere.
    bool findTyped(const QString &typed);

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    bool insertPicture(const QMimeData &source);
    bool insertPiece(const QString &html);
};

} // namespace forms
