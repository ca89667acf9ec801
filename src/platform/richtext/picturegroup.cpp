#include "platform/richtext/picturegroup.h"

#include "platform/forms/twips.h"

#include <algorithm>
#include <cmath>

namespace richtext
{

namespace
{

constexpr int largestSide = 31'680; // twips: 22 inches, the largest sheet of the format

double side(int twips, int percent)
{
    const double shown = std::round(static_cast<double>(twips) * std::clamp(percent, 1, 1000) / 100);
    return forms::toPixels(std::clamp<double>(shown, forms::twipsPerPixel, largestSide));
}

} // namespace

void PictureGroup::word(const Token &token)
{
    if (token.word == "picwgoal")
        width_ = token.parameter;
    else if (token.word == "pichgoal")
        height_ = token.parameter;
    else if (token.word == "picscalex")
        percentWide_ = token.parameter;
    else if (token.word == "picscaley")
        percentHigh_ = token.parameter;
}

void PictureGroup::hexadecimal(QByteArrayView digits)
{
    file_.reserve(file_.size() + digits.size() / 2 + 1);
    for (char digit : digits) {
        const int value = hexDigit(digit);
        if (value < 0)
            continue;
        if (half_ < 0) {
            half_ = value;
        } else {
            file_.append(static_cast<char>(half_ * 16 + value));
            half_ = -1;
        }
    }
}

QSizeF PictureGroup::shownSize() const
{
    if (width_ <= 0 || height_ <= 0)
        return {};
    return {side(width_, percentWide_), side(height_, percentHigh_)};
}

} // namespace richtext
