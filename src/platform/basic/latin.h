#pragma once

#include <array>

namespace basic
{

/// A Latin letter taken apart: the plain letter and the number of its accent; base 0 for anything else.
struct LatinLetter {
    char base = 0;
    unsigned char accent = 0;
};

inline constexpr unsigned char graveAccent = 1, acuteAccent = 2, circumflexAccent = 3, tildeAccent = 4,
                               diaeresisAccent = 5, ringAccent = 6, cedillaAccent = 7, caronAccent = 8,
                               otherAccent = 9;

namespace latin
{

// Small letters U+00E0 to U+00FF; those that stand for two letters or are no Latin letter have base 0.
inline constexpr std::array<LatinLetter, 32> smallLetters{{
    {'a', graveAccent},
    {'a', acuteAccent},
    {'a', circumflexAccent},
    {'a', tildeAccent},
    {'a', diaeresisAccent},
    {'a', ringAccent},
    {},
    {'c', cedillaAccent},
    {'e', graveAccent},
    {'e', acuteAccent},
    {'e', circumflexAccent},
    {'e', diaeresisAccent},
    {'i', graveAccent},
    {'i', acuteAccent},
    {'i', circumflexAccent},
    {'i', diaeresisAccent},
    {},
    {'n', tildeAccent},
    {'o', graveAccent},
    {'o', acuteAccent},
    {'o', circumflexAccent},
    {'o', tildeAccent},
    {'o', diaeresisAccent},
    {},
    {'o', otherAccent},
    {'u', graveAccent},
    {'u', acuteAccent},
    {'u', circumflexAccent},
    {'u', diaeresisAccent},
    {'y', acuteAccent},
    {},
    {'y', diaeresisAccent},
}};

// Plain letters of U+0100 to U+017F, capitals and small ones; 0 for what stands for two letters or is none.
inline constexpr char extendedBases[] =
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii\0\0jjkk\0llllllllll"
    "nnnnnn\0\0\0oooooo\0\0rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(sizeof extendedBases == 128 + 1);

} // namespace latin

/// The small letter of a Latin capital; every other character as it is.
constexpr char32_t foldedLatin(char32_t c)
{
    if (c < 0x80)
        return c >= U'A' && c <= U'Z' ? c + 0x20 : c;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7)
        return c + 0x20;
    if (c < 0x100 || c > 0x17F)
        return c;
    // In two stretches of the block the capitals have odd numbers, and there the small letter is even.
    const bool oddCapitals = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if (c == 0x178)
        return 0xFF;
    if (c == 0x130 || c == 0x131 || c == 0x138 || c == 0x149 || c == 0x17F)
        return c;
    return oddCapitals ? c + (c & 1) : c | 1;
}

constexpr LatinLetter latinLetter(char32_t folded)
{
    if (folded < 0x80)
        return {static_cast<char>(folded), 0};
    if (folded >= 0xE0 && folded <= 0xFF)
        return latin::smallLetters[folded - 0xE0];
    if (folded >= 0x100 && folded <= 0x17F)
        return {latin::extendedBases[folded - 0x100],
                static_cast<unsigned char>(otherAccent + (folded - 0x100))};
    return {};
}

} // namespace basic
