#pragma once

#include <array>
#include <functional>

/// Work in a process of its own on a disk that fails it: the calls by which the program changes a disk are
/// counted in this test program, and from one of them on they do not come back, or find no room.
namespace dyingdisk
{

struct Use {
    static constexpr int most = 64;
    long changes = 0;              ///< calls that changed the disk
    long bytes = 0;                ///< written
    int names = 0;                 ///< of the changes, those that gave a file a name or took one away
    std::array<long, most> naming; ///< which of the changes they were
};
/// What the work does to the disk when it is left alone.
Use measure(const std::function<void()> &work);

/// Kills the process before its change of that number, from 1 on; false when it had ended before.
bool killedBefore(long change, const std::function<void()> &work);

/// The disk has room for so many bytes more. True when the work came to its end by itself.
bool withRoomFor(long bytes, const std::function<void()> &work);

} // namespace dyingdisk
