#include "platform/basic/cleantext.h"

#include <algorithm>

namespace basic
{

namespace
{

bool isControl(char32_t c)
{
    return (c < 0x20 && c != U'\t' && c != U'\n' && c != U'\r') || (c >= 0x7F && c < 0xA0);
}

bool isInvisible(char32_t c)
{
    return isControl(c) || c == 0xFEFF || c == 0x200B || c == 0x2060 || QChar::isNonCharacter(c);
}

/// What almost every text consists of needs no look at it: no letter below this combines with the one before.
bool isPlain(QChar c)
{
    constexpr char16_t firstCombining = 0x300;
    return c.unicode() < firstCombining && !isControl(c.unicode());
}

} // namespace

QString cleanText(const QString &text)
{
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!c.isSurrogate()) {
            if (!isInvisible(c.unicode()))
                clean += c;
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            if (!isInvisible(QChar::surrogateToUcs4(c, text[i + 1])))
                clean += text.mid(i, 2);
            ++i;
        }
    }
    return clean.normalized(QString::NormalizationForm_C);
}

} // namespace basic
