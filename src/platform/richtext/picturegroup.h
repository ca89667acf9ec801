#pragma once

#include "platform/richtext/lexer.h"

#include <QByteArray>
#include <QSizeF>

namespace richtext
{

/// A picture as an RTF file tells it: its bytes, in hexadecimal or as they are, and how large it is shown.
class PictureGroup
{
public:
    /// A word of the group; those that are not about size change nothing.
    void word(const Token &token);
    void hexadecimal(QByteArrayView digits);
    void binary(QByteArrayView bytes) { file_.append(bytes.data(), bytes.size()); }

    const QByteArray &file() const { return file_; }
    /// In dots of the screen; empty where the file leaves it to the picture.
    QSizeF shownSize() const;

private:
    QByteArray file_;
    int half_ = -1;              ///< first digit of a byte whose second is still to come
    int width_ = 0, height_ = 0; ///< twips
    int percentWide_ = 100, percentHigh_ = 100;
};

} // namespace richtext
