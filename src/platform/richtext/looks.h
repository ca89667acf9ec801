#pragma once

#include <QTextListFormat>

#include <optional>

namespace richtext
{

enum class Script { Normal, Super, Sub };

/// How letters look, as an RTF file tells it.
struct Letters {
    bool bold = false, italic = false, underline = false, strike = false;
    Script script = Script::Normal;
    std::optional<int> font; ///< the file's default without
    int halfPoints = 24;
    int colour = 0, background = 0; ///< places in the colour table

    bool operator==(const Letters &) const = default;
};

/// How a paragraph stands.
struct Paragraph {
    Qt::Alignment alignment = Qt::AlignLeft;
    int left = 0, right = 0, first = 0, before = 0, after = 0; // twips
    int list = 0, level = 0;                                   ///< a list of the tables
    std::optional<QTextListFormat::Style> bullet;              ///< of an older file
};

} // namespace richtext
