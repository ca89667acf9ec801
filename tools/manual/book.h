#pragma once

#include "chapters.h"

/// Writes the manual as a PDF of A4 pages: cover, contents with page numbers, chapters. Throws
/// std::runtime_error when the file cannot be written.
void writeBook(const std::vector<Chapter> &chapters, const QString &logo, const QString &file);
