#include "dyingdisk.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <limits>
#include <stdexcept>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr long never = std::numeric_limits<long>::max();

/// Of the process whose disk fails; null in all others.
struct Disk {
    dyingdisk::Use use;
    long killBefore = never;
    long room = never;
};
Disk *disk = nullptr;

void change()
{
    if (disk && ++disk->use.changes >= disk->killBefore)
        kill(getpid(), SIGKILL);
}

void changeOfNames()
{
    if (disk && disk->use.names < dyingdisk::Use::most)
        disk->use.naming[static_cast<size_t>(disk->use.names++)] = disk->use.changes + 1;
    change();
}

bool isFile(int file)
{
    struct stat found = {};
    return fstat(file, &found) == 0 && S_ISREG(found.st_mode);
}

/// False when there is no room for the bytes.
bool mayWrite(int file, size_t bytes)
{
    if (!disk || !isFile(file))
        return true;
    change();
    disk->use.bytes += static_cast<long>(bytes);
    if (disk->use.bytes <= disk->room)
        return true;
    errno = ENOSPC;
    return false;
}

pid_t inChild(Disk &own, const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    disk = &own;
    try {
        work();
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

/// True when the work came to its end, well or not.
bool run(Disk &own, const std::function<void()> &work)
{
    int status = 0;
    waitpid(inChild(own, work), &status, 0);
    return WIFEXITED(status);
}

} // namespace

// The program's calls come here before they go to the system, the engine's and the toolkit's too.
extern "C" {

ssize_t write(int file, const void *from, size_t bytes)
{
    return mayWrite(file, bytes) ? syscall(SYS_write, file, from, bytes) : -1;
}

ssize_t pwrite(int file, const void *from, size_t bytes, off_t place)
{
    return mayWrite(file, bytes) ? syscall(SYS_pwrite64, file, from, bytes, place) : -1;
}

ssize_t pwrite64(int file, const void *from, size_t bytes, off64_t place)
{
    return pwrite(file, from, bytes, place);
}

int ftruncate(int file, off_t size) noexcept
{
    change();
    return static_cast<int>(syscall(SYS_ftruncate, file, size));
}

int ftruncate64(int file, off64_t size) noexcept
{
    return ftruncate(file, size);
}

int rename(const char *from, const char *to) noexcept
{
    changeOfNames();
    return static_cast<int>(syscall(SYS_rename, from, to));
}

int link(const char *from, const char *to) noexcept
{
    changeOfNames();
    return static_cast<int>(syscall(SYS_link, from, to));
}

int unlink(const char *path) noexcept
{
    if (access(path, F_OK) == 0)
        changeOfNames();
    return static_cast<int>(syscall(SYS_unlink, path));
}

int remove(const char *path) noexcept
{
    if (access(path, F_OK) == 0)
        changeOfNames();
    const int outcome = static_cast<int>(syscall(SYS_unlink, path));
    return outcome != 0 && errno == EISDIR ? static_cast<int>(syscall(SYS_rmdir, path)) : outcome;
}
}

namespace dyingdisk
{

Use measure(const std::function<void()> &work)
{
    void *shared = mmap(nullptr, sizeof(Disk), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        throw std::runtime_error("no memory to share");
    auto *own = new (shared) Disk;
    run(*own, work);
    const Use use = own->use;
    munmap(shared, sizeof(Disk));
    return use;
}

bool killedBefore(long number, const std::function<void()> &work)
{
    Disk own;
    own.killBefore = number;
    return !run(own, work);
}

bool withRoomFor(long bytes, const std::function<void()> &work)
{
    Disk own;
    own.room = bytes;
    return run(own, work);
}

} // namespace dyingdisk
