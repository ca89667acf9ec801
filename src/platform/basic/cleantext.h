#pragma once

#include <QString>

namespace basic
{

/// A text as it may enter the program: composed letters (NFC), and without characters that nobody sees and
/// that make two texts of one reading different, as other programs leave them when one pastes from them: byte
/// order marks, zero-width spaces, control characters but tabs and line breaks, noncharacters, lone halves of
/// surrogate pairs.
QString cleanText(const QString &text);

} // namespace basic
