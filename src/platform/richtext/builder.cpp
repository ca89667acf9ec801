#include "platform/richtext/builder.h"

#include "platform/basic/cleantext.h"
#include "platform/forms/twips.h"
#include "platform/richtext/pictures.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace richtext
{

namespace
{

constexpr int largestDistance = 31'680; // twips

double pixels(int twips)
{
    return forms::toPixels(std::clamp(twips, -largestDistance, largestDistance));
}

int levelOf(const Paragraph &paragraph)
{
    return std::clamp(paragraph.level, 0, ListTables::levels - 1);
}

} // namespace

void Builder::text(const QString &text, const Letters &letters, const Paragraph &paragraph)
{
    openParagraph(letters);
    if (letters != pendingLetters_)
        flush();
    pendingLetters_ = letters;
    lastParagraph_ = paragraph;
    pending_ += text;
}

void Builder::flush()
{
    if (pending_.isEmpty())
        return;
    QString text = basic::cleanText(pending_);
    text.remove(QChar::ObjectReplacementCharacter); // a picture's place, without a picture
    cursor_.insertText(text, tables_.format(pendingLetters_));
    pending_.clear();
}

/// The mark of a paragraph ends it: the next one begins with what comes after, if anything does.
void Builder::openParagraph(const Letters &letters)
{
    if (!paragraphEnded_)
        return;
    cursor_.insertBlock(QTextBlockFormat(), tables_.format(letters));
    paragraphEnded_ = false;
}

void Builder::endParagraph(const Letters &letters, const Paragraph &paragraph)
{
    openParagraph(letters);
    flush();
    if (cursor_.block().length() <= 1)
        cursor_.setBlockCharFormat(tables_.format(letters));
    dress(paragraph);
    paragraphEnded_ = true;
}

void Builder::endRow(const Letters &letters, const Paragraph &paragraph)
{
    if (pending_.endsWith(u'\t'))
        pending_.chop(1);
    endParagraph(letters, paragraph);
}

bool Builder::picture(const PictureGroup &picture, const Letters &letters, const Paragraph &paragraph)
{
    auto format = addPicture(document_, picture.file());
    if (!format)
        return false;
    if (const QSizeF size = picture.shownSize(); !size.isEmpty()) {
        format->setWidth(size.width());
        format->setHeight(size.height());
    }
    openParagraph(letters);
    flush();
    lastParagraph_ = paragraph;
    cursor_.insertImage(*format);
    return true;
}

void Builder::finish()
{
    flush();
    if (!paragraphEnded_)
        dress(lastParagraph_);
}

std::optional<QTextListFormat::Style> Builder::bulletOf(const Paragraph &paragraph) const
{
    if (paragraph.bullet || paragraph.list <= 0)
        return paragraph.bullet;
    return tables_.lists.style(paragraph.list, levelOf(paragraph));
}

void Builder::dress(const Paragraph &paragraph)
{
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    const auto set = [&](void (QTextBlockFormat::*setter)(qreal), int twips) {
        if (twips != 0)
            (format.*setter)(pixels(twips));
    };
    set(&QTextBlockFormat::setTopMargin, std::max(paragraph.before, 0));
    set(&QTextBlockFormat::setBottomMargin, std::max(paragraph.after, 0));
    const auto bullet = bulletOf(paragraph);
    if (!bullet) { // a list has the indents of its level
        set(&QTextBlockFormat::setLeftMargin, paragraph.left);
        set(&QTextBlockFormat::setRightMargin, paragraph.right);
        set(&QTextBlockFormat::setTextIndent, paragraph.first);
    }
    cursor_.setBlockFormat(format);
    if (bullet)
        joinList(paragraph, *bullet);
    else
        list_ = nullptr;
}

/// Paragraphs of one list and level go on counting, unless a level above came in between. An older file has
/// no names for its lists: there what follows without a break is one.
void Builder::joinList(const Paragraph &paragraph, QTextListFormat::Style style)
{
    const int level = levelOf(paragraph);
    QTextList *list = list_ && list_->format().style() == style ? list_ : nullptr;
    if (paragraph.list > 0) {
        openLists_.erase(openLists_.upper_bound({paragraph.list, level}),
                         openLists_.lower_bound({paragraph.list + 1, 0}));
        const auto known = openLists_.find({paragraph.list, level});
        list = known == openLists_.end() ? nullptr : known->second;
    }
    if (list) {
        list->add(cursor_.block());
    } else {
        QTextListFormat format;
        format.setStyle(style);
        format.setIndent(level + 1);
        list = cursor_.createList(format);
    }
    if (paragraph.list > 0)
        openLists_[{paragraph.list, level}] = list;
    list_ = list;
}

} // namespace richtext
