#include "platform/basic/typed.h"

#include "platform/basic/latin.h"

namespace basic
{

namespace
{

/// Latin letters without their accents, ñ apart; every other character as it is, small.
QString plain(QStringView text)
{
    QString folded = text.toString().normalized(QString::NormalizationForm_C).toLower();
    for (QChar &c : folded) {
        const LatinLetter letter = latinLetter(c.unicode());
        const bool enie = letter.base == 'n' && letter.accent == tildeAccent;
        if (letter.base != 0 && !enie)
            c = QLatin1Char(letter.base);
    }
    return folded;
}

/// Both sides as they are held against one another: a text's ñ is an n for whoever typed no ñ.
struct Sides {
    QString text, typed;
};

Sides sides(QStringView text, QStringView typed)
{
    Sides both{plain(text), plain(typed)};
    if (!both.typed.contains(u'ñ'))
        both.text.replace(u'ñ', u'n');
    return both;
}

bool meets(QStringView text, QStringView typed)
{
    for (qsizetype i = 0; i < typed.size(); ++i)
        if (text[i] != typed[i] && !(text[i] == u'ñ' && typed[i] == u'n'))
            return false;
    return true;
}

} // namespace

std::optional<bool> typedTruth(QStringView text)
{
    const QString word = plain(text.trimmed());
    for (QStringView yes : {u"si", u"verdadero", u"true", u"-1"})
        if (word == yes)
            return true;
    for (QStringView no : {u"no", u"falso", u"false", u"0"})
        if (word == no)
            return false;
    return std::nullopt;
}

bool beginsWithTyped(QStringView text, QStringView typed)
{
    const Sides both = sides(text, typed);
    return both.text.size() >= both.typed.size() && meets(both.text, both.typed);
}

qsizetype indexOfTyped(QStringView text, QStringView typed, qsizetype from)
{
    const Sides both = sides(text, typed);
    if (!both.typed.contains(u'ñ'))
        return both.text.indexOf(both.typed, from);
    for (; from + both.typed.size() <= both.text.size(); ++from)
        if (meets(QStringView(both.text).mid(from), both.typed))
            return from;
    return -1;
}

bool containsTyped(QStringView text, QStringView typed)
{
    return indexOfTyped(text, typed) >= 0;
}

QString lettersMeant(QChar typed)
{
    constexpr char16_t firstAccented = 0xE0;
    constexpr char16_t lastAccented = 0x17F;
    const QString folded = plain(QStringView(&typed, 1));
    if (folded.size() != 1 || folded[0].unicode() >= 0x80 || !folded[0].isLetter())
        return folded;
    QString letters = folded;
    for (char16_t c = firstAccented; c <= lastAccented; ++c)
        if (latinLetter(c).base == folded[0].toLatin1() && foldedLatin(c) == c)
            letters += QChar(c);
    return letters;
}

} // namespace basic
