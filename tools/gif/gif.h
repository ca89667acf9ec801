#pragma once

#include <QImage>
#include <QString>

/// Writes a picture as GIF, in the 256 colours it uses most. Throws std::runtime_error when it cannot.
void saveGif(const QImage &image, const QString &file);
