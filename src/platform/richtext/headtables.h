#pragma once

#include "platform/richtext/codepage.h"
#include "platform/richtext/listtables.h"
#include "platform/richtext/looks.h"

#include <QColor>
#include <QTextCharFormat>

#include <unordered_map>
#include <vector>

namespace richtext
{

/// What an RTF file tells once at its head and then calls by number: fonts, colours, lists; and the code page
/// of its texts.
class HeadTables
{
public:
    void setPage(CodePage page) { page_ = page; }
    void setDefaultFont(int number) { defaultFont_ = number; }

    void beginFont(int number) { font_ = number; }
    void fontText(const QString &text);
    void setFontPage(CodePage page) { fonts_[font_].page = page; }

    QColor &colour() { return colour_; } ///< the one being told
    void colourText(QByteArrayView text);

    ListTables lists;

    /// Of a text in these letters.
    CodePage page(const Letters &letters) const;
    QTextCharFormat format(const Letters &letters) const;

private:
    struct Font {
        QString name;
        std::optional<CodePage> page;
    };
    const Font *fontOf(const Letters &letters) const;
    QColor colourAt(int place) const;

    CodePage page_ = CodePage::Windows1252;
    std::unordered_map<int, Font> fonts_;
    int defaultFont_ = 0, font_ = 0;
    std::vector<QColor> colours_; ///< an invalid one is the reader's own
    QColor colour_;
};

} // namespace richtext
