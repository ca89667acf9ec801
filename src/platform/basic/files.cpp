#include "platform/basic/files.h"

#include "platform/basic/errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

namespace basic
{

namespace
{

[[noreturn]] void fail(const QString &path, const std::error_code &reason)
{
    throw Error(fileError, QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path),
                                                        qt_error_string(reason.value())));
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

std::filesystem::path native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

void sync(const QString &path, int flags)
{
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (file < 0)
        fail(path, lastError());
    const int outcome = ::fsync(file);
    const std::error_code reason = lastError();
    ::close(file);
    // A share that cannot do it for a folder says so, and does what it can by itself.
    if (outcome != 0 && reason.value() != EINVAL && reason.value() != EROFS)
        fail(path, reason);
}

} // namespace

void syncFile(const QString &path)
{
    sync(path, O_RDWR);
}

void syncFolderOf(const QString &path)
{
    sync(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
}

void replaceFile(const QString &from, const QString &to)
{
    syncFile(from);
    std::error_code reason;
    std::filesystem::rename(native(from), native(to), reason);
    if (reason)
        fail(to, reason);
    syncFolderOf(to);
}

void keepUnderAnotherName(const QString &path, const QString &second)
{
    std::error_code reason;
    std::filesystem::create_hard_link(native(path), native(second), reason);
    if (reason == std::errc::file_exists)
        fail(second, reason);
    if (reason)
        replaceFile(path, second);
    else
        syncFolderOf(second);
}

void removeFile(const QString &path)
{
    std::error_code reason;
    std::filesystem::remove(native(path), reason);
    if (reason)
        fail(path, reason);
}

} // namespace basic
