#pragma once

#include <QString>

/// Work on whole files that other work stands on: what these return from is on the disk, after a power cut
/// too. They throw Error 75 with the file and the system's reason.
namespace basic
{

inline constexpr int fileError = 75;

/// The file's bytes reach the disk.
void syncFile(const QString &path);
/// The names in the file's folder reach the disk.
void syncFolderOf(const QString &path);
/// Gives a file that is whole another name of the same disk, in one stroke: whoever looks finds what stood
/// under that name or the new file, never neither.
void replaceFile(const QString &from, const QString &to);
/// The file also stands under a second name, free until then, whatever becomes of the first. Where the disk
/// gives a file one name only it stands under the second alone.
void keepUnderAnotherName(const QString &path, const QString &second);
/// Takes the file away, if there is one.
void removeFile(const QString &path);

} // namespace basic
