#pragma once

#include "sheet.h"

#include <QImage>

/// Pixels of the picture for each pixel of the screen, so that the curves stay sharp on paper.
inline constexpr int sharpness = 2;

/// The picture of a sheet, `sharpness` times as large as it is shown.
QImage paint(const Sheet &sheet, const QDir &tables);
