#pragma once

#include "chapters.h"

/// Writes the help: index.html, a page for each chapter, and a page for each window that one explains.
void writeHelp(const std::vector<Chapter> &chapters, const QDir &folder);
