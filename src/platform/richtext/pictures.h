#pragma once

#include <QTextImageFormat>

#include <optional>

class QTextDocument;

/// Pictures inside a rich text. The document keeps the file of each as it came, under the name that its
/// format has, so that saving it again changes no dot of it.
namespace richtext
{

/// The picture as part of the document, for a cursor to insert; nothing when the bytes are no PNG or JPEG
/// that can be shown.
std::optional<QTextImageFormat> addPicture(QTextDocument &document, const QByteArray &file);

/// The bytes of a picture of the document, as PNG when it came as something else; empty when there is none of
/// that name.
QByteArray pictureFile(const QTextDocument &document, const QString &name);

/// Whether the bytes are a PNG; what pictureFile() gives is a JPEG otherwise.
bool isPng(const QByteArray &file);

} // namespace richtext
