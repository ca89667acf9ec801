#include "platform/dao/dialect/like.h"

#include "platform/basic/latin.h"

#include <QList>
#include <QString>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>

namespace dao
{

using basic::foldedLatin;

namespace
{

std::vector<char32_t> characters(QByteArrayView utf8)
{
    const QList<uint> codes = QString::fromUtf8(utf8).toUcs4();
    return {codes.begin(), codes.end()};
}

char32_t characterAt(const char *&p, const char *end)
{
    const auto lead = static_cast<unsigned char>(*p++);
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (following == 0 || end - p < following)
        return lead;
    char32_t c = lead & (0x3Fu >> following);
    for (int i = 0; i < following; ++i)
        c = (c << 6) | (static_cast<unsigned char>(p[i]) & 0x3Fu);
    p += following;
    return c;
}

} // namespace

void foldUtf8(QByteArrayView text, char *to)
{
    static constexpr auto small = [] {
        std::array<char, 128> table{};
        for (size_t i = 0; i < table.size(); ++i)
            table[i] = static_cast<char>(foldedLatin(static_cast<char32_t>(i)));
        return table;
    }();
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            to[i] = small[byte];
            continue;
        }
        to[i] = static_cast<char>(byte);
        if (byte < 0xC3 || byte > 0xC5 || i + 1 == size)
            continue;
        const char32_t folded =
            foldedLatin(((byte & 0x1Fu) << 6) | (static_cast<unsigned char>(text[i + 1]) & 0x3Fu));
        to[i] = static_cast<char>(0xC0 | (folded >> 6));
        to[i + 1] = static_cast<char>(0x80 | (folded & 0x3F));
        ++i;
    }
}

LikePattern::LikePattern(QByteArrayView pattern)
{
    QByteArray folded(pattern.size(), Qt::Uninitialized);
    foldUtf8(pattern, folded.data());
    QByteArrayView inner(folded);
    const bool before = inner.startsWith('*');
    if (before)
        inner = inner.sliced(1);
    const bool after = inner.endsWith('*');
    if (after)
        inner.chop(1);
    if (std::none_of(inner.begin(), inner.end(),
                     [](char c) { return c == '*' || c == '?' || c == '#' || c == '['; })) {
        shape_ = before ? (after ? Shape::Inside : Shape::Suffix) : after ? Shape::Prefix : Shape::Whole;
        literal_ = inner.toByteArray();
        return;
    }
    steps_ = compile(characters(folded));
}

std::vector<LikePattern::Step> LikePattern::compile(const std::vector<char32_t> &pattern) const
{
    std::vector<Step> steps;
    for (size_t i = 0; i < pattern.size(); ++i) {
        const char32_t c = pattern[i];
        const auto close =
            c == U'[' ? std::find(pattern.begin() + static_cast<qsizetype>(i) + 1, pattern.end(), U']')
                      : pattern.end();
        if (c == U'*') {
            if (steps.empty() || steps.back().kind != Step::Any)
                steps.push_back({Step::Any});
        } else if (c == U'?') {
            steps.push_back({Step::One});
        } else if (c == U'#') {
            steps.push_back({Step::Digit});
        } else if (close != pattern.end()) {
            Step step{Step::OneOf};
            auto at = pattern.begin() + static_cast<qsizetype>(i) + 1;
            step.negated = at != close && *at == U'!';
            if (step.negated)
                ++at;
            while (at != close) {
                const bool range = close - at >= 3 && at[1] == U'-';
                step.ranges.push_back({at[0], range ? at[2] : at[0]});
                at += range ? 3 : 1;
            }
            steps.push_back(std::move(step));
            i = static_cast<size_t>(close - pattern.begin());
        } else {
            steps.push_back({Step::Character, c});
        }
    }
    return steps;
}

bool LikePattern::matches(QByteArrayView text) const
{
    if (shape_ != Shape::General && text.size() < literal_.size())
        return false;
    const auto size = static_cast<size_t>(literal_.size());
    QVarLengthArray<char, 512> folded;
    switch (shape_) {
    case Shape::Whole:
        if (text.size() != literal_.size())
            return false;
        break;
    case Shape::Prefix: {
        // A cut character folds as it is, and the literal has no cut ones.
        text = text.first(literal_.size());
        break;
    }
    case Shape::Suffix:
        text = text.last(literal_.size());
        break;
    case Shape::Inside:
        folded.resize(text.size());
        foldUtf8(text, folded.data());
        return size == 0 ||
               memmem(folded.data(), static_cast<size_t>(folded.size()), literal_.data(), size) != nullptr;
    case Shape::General:
        folded.resize(text.size());
        foldUtf8(text, folded.data());
        return matchesGeneral({folded.data(), folded.size()});
    }
    folded.resize(text.size());
    foldUtf8(text, folded.data());
    return size == 0 || std::memcmp(folded.data(), literal_.data(), size) == 0;
}

bool LikePattern::accepts(const Step &step, char32_t c)
{
    switch (step.kind) {
    case Step::Any:
    case Step::One:
        return true;
    case Step::Digit:
        return c >= U'0' && c <= U'9';
    case Step::Character:
        return c == step.character;
    case Step::OneOf:
        break;
    }
    const bool inside = std::any_of(step.ranges.begin(), step.ranges.end(),
                                    [c](const Range &range) { return c >= range.first && c <= range.last; });
    return inside != step.negated;
}

bool LikePattern::matchesGeneral(QByteArrayView folded) const
{
    // Going back to the last * alone is enough: an earlier one could only take what the later one takes too.
    const char *p = folded.data();
    const char *const end = p + folded.size();
    size_t step = 0;
    size_t afterStar = 0;
    const char *starText = nullptr;
    while (p != end) {
        if (step < steps_.size() && steps_[step].kind == Step::Any) {
            afterStar = ++step;
            starText = p;
            continue;
        }
        const char *next = p;
        const char32_t c = characterAt(next, end);
        if (step < steps_.size() && accepts(steps_[step], c)) {
            ++step;
            p = next;
        } else if (starText) {
            characterAt(starText, end);
            p = starText;
            step = afterStar;
        } else {
            return false;
        }
    }
    while (step < steps_.size() && steps_[step].kind == Step::Any)
        ++step;
    return step == steps_.size();
}

} // namespace dao
