#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace richtext
{

/// What the bytes of a text above 127 mean: the letters of the windowed systems, or those of the older ones.
enum class CodePage { Windows1252, Dos850 };

QString decode(QByteArrayView bytes, CodePage page);
/// The byte of the character in code page 1252; nothing when it has none.
std::optional<unsigned char> byteIn1252(QChar character);

} // namespace richtext
