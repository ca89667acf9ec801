#pragma once

#include <QString>

#include <optional>

namespace dao
{

/// The file that keeps the queue of a database's stations, beside it.
QString queueFile(const QString &databaseFile);

/// The queue in which the stations of one file wait to write. The engine's own locks let in whoever asks at
/// the right moment, so that of many stations that write without a pause one may wait for minutes. Here each
/// takes a number and its turn after the one before, by locks that the system keeps, on a network share too,
/// and takes back from a station that dies. It guards nothing: the engine's locks do. Where the file
/// of the queue cannot be made, or the wait is over, a station goes on without a turn.
class WriteQueue
{
public:
    explicit WriteQueue(const QString &databaseFile);
    ~WriteQueue();
    WriteQueue(const WriteQueue &) = delete;
    WriteQueue &operator=(const WriteQueue &) = delete;

    /// Makes it known, until the end, that this station has the file open; alone, that it is the only one.
    /// False when another station has the file, or has it alone, longer than the wait.
    bool join(bool alone, int longestWaitMs);

    void enter(int longestWaitMs);
    void leave();

private:
    class Wait;
    std::optional<quint64> takeNumber(Wait &wait);
    void giveNumberBack();

    int file_ = -1;
    bool inside_ = false;
    std::optional<quint64> number_;
};

} // namespace dao
