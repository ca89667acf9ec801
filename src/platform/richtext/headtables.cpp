#include "platform/richtext/headtables.h"

#include "platform/basic/cleantext.h"

namespace richtext
{

void HeadTables::fontText(const QString &text)
{
    const qsizetype end = text.indexOf(u';');
    QString &name = fonts_[font_].name;
    if (!name.endsWith(u';'))
        name += end < 0 ? text : text.first(end + 1);
}

/// A semicolon ends a colour; one that says nothing stands for the reader's own.
void HeadTables::colourText(QByteArrayView text)
{
    for (char c : text) {
        if (c != ';')
            continue;
        colours_.push_back(colour_);
        colour_ = QColor();
    }
}

const HeadTables::Font *HeadTables::fontOf(const Letters &letters) const
{
    const auto font = fonts_.find(letters.font.value_or(defaultFont_));
    return font == fonts_.end() ? nullptr : &font->second;
}

QColor HeadTables::colourAt(int place) const
{
    return place > 0 && place < static_cast<int>(colours_.size()) ? colours_[static_cast<std::size_t>(place)]
                                                                  : QColor();
}

CodePage HeadTables::page(const Letters &letters) const
{
    const Font *font = fontOf(letters);
    return font ? font->page.value_or(page_) : page_;
}

QTextCharFormat HeadTables::format(const Letters &letters) const
{
    QTextCharFormat format;
    if (const Font *font = fontOf(letters)) {
        const QString name = basic::cleanText(font->name).remove(u';').trimmed();
        if (!name.isEmpty())
            format.setFontFamilies({name});
    }
    format.setFontPointSize(letters.halfPoints / 2.0);
    if (letters.bold)
        format.setFontWeight(QFont::Bold);
    if (letters.italic)
        format.setFontItalic(true);
    if (letters.underline)
        format.setFontUnderline(true);
    if (letters.strike)
        format.setFontStrikeOut(true);
    if (letters.script != Script::Normal)
        format.setVerticalAlignment(letters.script == Script::Super ? QTextCharFormat::AlignSuperScript
                                                                    : QTextCharFormat::AlignSubScript);
    if (const QColor colour = colourAt(letters.colour); colour.isValid())
        format.setForeground(colour);
    if (const QColor background = colourAt(letters.background); background.isValid())
        format.setBackground(background);
    return format;
}

} // namespace richtext
