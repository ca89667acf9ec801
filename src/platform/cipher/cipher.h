#pragma once

#include <QString>

#include <optional>

/// A short text made unreadable and readable again under a key text, for what the settings keep.
namespace cipher
{

/// Letters and figures, different each time.
QString encryptString(const QString &key, const QString &text);
/// Nothing when it is no such text, was made under another key or has been changed.
std::optional<QString> decryptString(const QString &key, const QString &enciphered);

} // namespace cipher
