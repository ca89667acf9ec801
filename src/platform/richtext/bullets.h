#pragma once

#include <QTextListFormat>

#include <array>
#include <string_view>

namespace richtext
{

/// How the items of a list are marked, in the document, in the file's list tables, and in the older files,
/// which say it with each paragraph.
struct Bullet {
    QTextListFormat::Style style;
    int number;
    std::string_view word;
};

constexpr int plainBullet = 23;

// The first of a number is the one read.
inline constexpr std::array<Bullet, 8> bullets{{
    {QTextListFormat::ListDisc, plainBullet, "pnlvlblt"},
    {QTextListFormat::ListCircle, plainBullet, ""},
    {QTextListFormat::ListSquare, plainBullet, ""},
    {QTextListFormat::ListDecimal, 0, "pndec"},
    {QTextListFormat::ListUpperRoman, 1, "pnucrm"},
    {QTextListFormat::ListLowerRoman, 2, "pnlcrm"},
    {QTextListFormat::ListUpperAlpha, 3, "pnucltr"},
    {QTextListFormat::ListLowerAlpha, 4, "pnlcltr"},
}};

} // namespace richtext
