#pragma once

#include <QString>

namespace dao
{

/// The file that keeps the queue of a database's stations, beside it.
QString queueFile(const QString &databaseFile);

/// The queue in which the stations of one file wait to write. The engine's own locks let in whoever asks at
/// the right moment, so that of many stations that write without a pause one may wait for minutes. Here each
/// takes its turn: the system hands the lock on in the order in which it was asked for, on a network share
/// too, and takes it back from a station that dies. It guards nothing: the engine's locks do. Where the file
/// of the queue cannot be made, or the wait is over, a station goes on without a turn.
class WriteQueue
{
public:
    explicit WriteQueue(const QString &databaseFile);
    ~WriteQueue();
    WriteQueue(const WriteQueue &) = delete;
    WriteQueue &operator=(const WriteQueue &) = delete;

    void enter(int longestWaitMs);
    void leave();

private:
    int file_ = -1;
    bool inside_ = false;
};

} // namespace dao
