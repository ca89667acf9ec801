#pragma once

#include <QString>

namespace dao
{

/// Writes a copy of an enciphered file whose first page is lost, with a first page made anew: in a practice's
/// file it holds but the way to the pages that describe the tables, and these are found among all pages.
/// Throws Error: FileDamaged when there are none, WrongPassword when the password fits no page at all.
void copyWithNewFirstPage(const QString &path, const QString &copy, const QString &password);

} // namespace dao
