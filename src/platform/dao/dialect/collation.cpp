#include "platform/dao/dialect/collation.h"

#include "platform/basic/latin.h"

#include <algorithm>
#include <cstring>

namespace dao
{

using basic::foldedLatin;
using basic::LatinLetter;
using basic::latinLetter;
using basic::tildeAccent;

namespace
{

// Two bits of room above the letter's double code, so that ñ fits between n and o.
constexpr quint32 weightOfOther = 0x10000;

struct Weight {
    quint32 letter;
    quint32 accent;
};

Weight weightOf(char32_t c)
{
    c = foldedLatin(c);
    const LatinLetter parts = latinLetter(c);
    if (parts.base == 'n' && parts.accent == tildeAccent)
        return {2u * 'n' + 1, 0};
    if (parts.base != 0)
        return {2u * static_cast<unsigned char>(parts.base), parts.accent};
    return {weightOfOther + static_cast<quint32>(c), 0};
}

const auto &asciiWeights()
{
    static const auto weights = [] {
        std::array<quint16, 128> table{};
        for (size_t i = 0; i < table.size(); ++i)
            table[i] = static_cast<quint16>(2 * foldedLatin(static_cast<char32_t>(i)));
        return table;
    }();
    return weights;
}

/// Reads one character; a byte that is no UTF-8 stands for itself.
char32_t nextCharacter(const unsigned char *&p, const unsigned char *end)
{
    const unsigned char lead = *p++;
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (following == 0 || end - p < following)
        return lead;
    char32_t c = lead & (0x3Fu >> following);
    for (int i = 0; i < following; ++i)
        c = (c << 6) | (p[i] & 0x3Fu);
    p += following;
    return c;
}

} // namespace

int compareSpanish(QByteArrayView a, QByteArrayView b)
{
    const auto &ascii = asciiWeights();
    const auto *p = reinterpret_cast<const unsigned char *>(a.data());
    const auto *q = reinterpret_cast<const unsigned char *>(b.data());
    const auto *const endA = p + a.size();
    const auto *const endB = q + b.size();
    int accents = 0;
    while (p != endA && q != endB) {
        if (*p < 0x80 && *q < 0x80) {
            const int difference = ascii[*p++] - ascii[*q++];
            if (difference != 0)
                return difference;
            continue;
        }
        const Weight left = weightOf(nextCharacter(p, endA));
        const Weight right = weightOf(nextCharacter(q, endB));
        if (left.letter != right.letter)
            return left.letter < right.letter ? -1 : 1;
        if (accents == 0 && left.accent != right.accent)
            accents = left.accent < right.accent ? -1 : 1;
    }
    if (p != endA || q != endB)
        return p != endA ? 1 : -1;
    return accents;
}

int compareSpanish(QStringView a, QStringView b)
{
    return compareSpanish(QByteArrayView(a.toUtf8()), QByteArrayView(b.toUtf8()));
}

} // namespace dao
