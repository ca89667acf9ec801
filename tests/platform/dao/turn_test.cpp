#include "platform/dao/embedded/turn.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using dao::WriteQueue;

namespace
{

constexpr int longWait = 10000;

class TurnTest : public testing::Test
{
protected:
    QString base() const { return folder.filePath("BASE.MDB"); }
    QTemporaryDir folder;
};

qint64 millisecondsToEnter(WriteQueue &queue, int longest)
{
    QElapsedTimer timer;
    timer.start();
    queue.enter(longest);
    return timer.elapsed();
}

} // namespace

/// Each station has the file open by itself, as processes do: the locks are those of the open file.
TEST_F(TurnTest, stationsThatWriteWithoutAPauseTakeTurns)
{
    constexpr int stations = 4;
    constexpr int turns = 100;
    std::atomic<int> inside = 0;
    std::atomic<bool> together = false;
    std::atomic<int> ready = 0;
    std::vector<int> order;
    std::vector<std::thread> threads;
    for (int station = 0; station < stations; ++station) {
        threads.emplace_back([&, station] {
            WriteQueue queue(base());
            for (++ready; ready < stations;)
                std::this_thread::yield();
            for (int i = 0; i < turns; ++i) {
                queue.enter(longWait);
                together = together || ++inside != 1;
                order.push_back(station);
                QThread::msleep(2);
                --inside;
                queue.leave();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_FALSE(together);
    ASSERT_EQ(order.size(), stations * turns);
    // While all of them want to write nobody is left out for more than a few rounds.
    const size_t common = order.size() / 2;
    for (int station = 0; station < stations; ++station) {
        size_t gap = 0;
        size_t widest = 0;
        for (size_t i = 0; i < common; ++i) {
            gap = order[i] == station ? 0 : gap + 1;
            widest = std::max(widest, gap);
        }
        EXPECT_LT(widest, stations * 5u) << "station " << station;
    }
}

TEST_F(TurnTest, aWaitEndsWithItsTimeAndTheStationGoesOn)
{
    WriteQueue first(base());
    WriteQueue second(base());
    first.enter(longWait);
    EXPECT_LT(millisecondsToEnter(first, longWait), 50) << "its own turn keeps nobody waiting for itself";
    const qint64 waited = millisecondsToEnter(second, 300);
    EXPECT_GE(waited, 280);
    EXPECT_LT(waited, 2000);
    second.leave(); // it had no turn to give
    EXPECT_GE(millisecondsToEnter(second, 200), 180);
    first.leave();
    EXPECT_LT(millisecondsToEnter(second, longWait), 100);
}

TEST_F(TurnTest, aStationThatDiesGivesItsTurnBack)
{
    int signal[2];
    ASSERT_EQ(pipe(signal), 0);
    const pid_t child = fork();
    if (child == 0) {
        WriteQueue queue(base());
        queue.enter(longWait);
        [[maybe_unused]] const auto told = write(signal[1], "x", 1);
        pause();
        _exit(0);
    }
    char entered = 0;
    ASSERT_EQ(read(signal[0], &entered, 1), 1);
    WriteQueue queue(base());
    EXPECT_GE(millisecondsToEnter(queue, 200), 180);
    queue.leave();
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_LT(millisecondsToEnter(queue, longWait), 500);
}

TEST_F(TurnTest, whereNoQueueCanBeMadeNobodyWaits)
{
    WriteQueue queue(folder.filePath("no está/BASE.MDB"));
    EXPECT_LT(millisecondsToEnter(queue, longWait), 50);
    queue.leave();
}
