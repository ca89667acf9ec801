#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace dao
{

/// A pattern of LIKE, compiled: * any text, ? one character, # one digit, [a-z] one of, [!a] none of.
/// Without regard to case; accents and ñ count. Texts are UTF-8.
class LikePattern
{
public:
    explicit LikePattern(QByteArrayView pattern);
    bool matches(QByteArrayView text) const;

private:
    enum class Shape { Whole, Prefix, Suffix, Inside, General };
    struct Range {
        char32_t first, last;
    };
    struct Step {
        enum Kind { Any, One, Digit, Character, OneOf } kind;
        char32_t character = 0;
        bool negated = false;
        std::vector<Range> ranges = {};
    };

    bool matchesGeneral(QByteArrayView folded) const;
    static bool accepts(const Step &step, char32_t c);
    std::vector<Step> compile(const std::vector<char32_t> &pattern) const;

    Shape shape_ = Shape::General;
    QByteArray literal_; ///< the folded text of the simple shapes
    std::vector<Step> steps_;
};

/// The UTF-8 of a text with Latin capitals made small, byte for byte of the same length.
void foldUtf8(QByteArrayView text, char *to);

} // namespace dao
