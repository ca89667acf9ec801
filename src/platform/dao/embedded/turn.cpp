#include "platform/dao/embedded/turn.h"

#include "platform/dao/database.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMutex>
#include <QThread>
#include <QtEndian>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <optional>

namespace dao
{

namespace
{

// Bytes of the file that are locked. Who comes takes the next number, holds its byte until its turn is over,
// and waits for the byte of the number before: so all of them follow one another as they came. A number is
// also given back by a station that dies waiting, or waits no more; then the desk keeps the next one back.
constexpr off_t counter = 0;
constexpr off_t desk = 1;
constexpr off_t presence = 2; // shared by all that have the database open
constexpr off_t firstNumber = 1 << 20;
constexpr quint64 numbers = 1 << 20;

// Where the number given last stands in it, in the order of little-endian machines.
constexpr off_t counterPlace = 16;

off_t byteOf(quint64 number)
{
    return firstNumber + static_cast<off_t>(number % numbers);
}

int lockByte(int file, off_t byte, short kind, bool wait)
{
    struct flock lock = {};
    lock.l_type = kind;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return fcntl(file, wait ? F_OFD_SETLKW : F_OFD_SETLK, &lock);
}

int openQueueFile(const QString &databaseFile)
{
    return ::open(QFile::encodeName(queueFile(databaseFile)).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0660);
}

/// A file of the machine, whatever name it was reached by.
using FileId = std::pair<dev_t, ino_t>;

FileId idOf(int file)
{
    struct stat found = {};
    ::fstat(file, &found);
    return {found.st_dev, found.st_ino};
}

/// The queue files whose database this process has alone: its own connections need not ask.
class OwnFiles
{
public:
    void add(FileId id)
    {
        const QMutexLocker lock(&mutex_);
        ++times_[id];
    }
    void take(FileId id)
    {
        const QMutexLocker lock(&mutex_);
        if (--times_[id] == 0)
            times_.erase(id);
    }
    bool has(FileId id)
    {
        const QMutexLocker lock(&mutex_);
        return times_.contains(id);
    }

private:
    QMutex mutex_;
    std::map<FileId, int> times_;
};

OwnFiles ownFiles;

void interrupted(int)
{
}

/// Ends a wait of this thread for a lock when its time is over: a signal interrupts the call.
class Deadline
{
public:
    explicit Deadline(int ms)
    {
        static const int signal = [] {
            struct sigaction action = {};
            action.sa_handler = interrupted;
            sigemptyset(&action.sa_mask);
            sigaction(SIGRTMIN + 4, &action, nullptr);
            return SIGRTMIN + 4;
        }();
        struct sigevent event = {};
        event.sigev_notify = SIGEV_THREAD_ID;
        event.sigev_signo = signal;
        event._sigev_un._tid = static_cast<pid_t>(syscall(SYS_gettid));
        if (timer_create(CLOCK_MONOTONIC, &event, &timer_) != 0)
            return;
        made_ = true;
        // It goes on knocking, should the first signal come between the look at the clock and the call.
        constexpr long again = 20'000'000;
        struct itimerspec span = {};
        span.it_value.tv_sec = ms / 1000;
        span.it_value.tv_nsec = (ms % 1000) * 1'000'000L + 1;
        span.it_interval.tv_nsec = again;
        timer_settime(timer_, 0, &span, nullptr);
        left_.start();
        ms_ = ms;
    }
    ~Deadline()
    {
        if (made_)
            timer_delete(timer_);
    }
    Deadline(const Deadline &) = delete;
    Deadline &operator=(const Deadline &) = delete;

    bool made() const { return made_; }
    bool over() const { return left_.elapsed() >= ms_; }

private:
    timer_t timer_ = {};
    bool made_ = false;
    QElapsedTimer left_;
    int ms_ = 0;
};

} // namespace

/// The locks of one who comes, within the time that it has.
class WriteQueue::Wait
{
public:
    Wait(int file, int ms) : file_(file), ms_(ms) {}

    bool lock(off_t byte)
    {
        if (lockByte(file_, byte, F_WRLCK, false) == 0)
            return true;
        if (!deadline_)
            deadline_.emplace(ms_);
        while (lockByte(file_, byte, F_WRLCK, deadline_->made()) != 0) {
            if (errno != EINTR || deadline_->over())
                return false;
        }
        return true;
    }

private:
    int file_;
    int ms_;
    std::optional<Deadline> deadline_;
};

QString queueFile(const QString &databaseFile)
{
    return databaseFile + QStringLiteral(".cola");
}

WriteQueue::WriteQueue(const QString &databaseFile) : file_(openQueueFile(databaseFile))
{
}

WriteQueue::~WriteQueue()
{
    if (file_ >= 0)
        ::close(file_);
}

bool WriteQueue::join(bool alone, int longestWaitMs)
{
    if (file_ < 0 || ownFiles.has(idOf(file_)))
        return true;
    constexpr unsigned long napMs = 20;
    QElapsedTimer waiting;
    waiting.start();
    while (lockByte(file_, presence, alone ? F_WRLCK : F_RDLCK, false) != 0) {
        if (errno != EAGAIN && errno != EACCES)
            return true; // a disk without such locks: the engine's own are all there is
        if (waiting.elapsed() > longestWaitMs)
            return false;
        QThread::msleep(napMs);
    }
    return true;
}

std::optional<quint64> WriteQueue::takeNumber(Wait &wait)
{
    if (!wait.lock(counter))
        return {};
    quint64 number = 0;
    bool taken = ::pread(file_, &number, sizeof number, counterPlace) >= 0;
    number = qToLittleEndian(qFromLittleEndian(number) + 1);
    taken = taken && ::pwrite(file_, &number, sizeof number, counterPlace) == sizeof number &&
            lockByte(file_, byteOf(qFromLittleEndian(number)), F_WRLCK, false) == 0;
    lockByte(file_, counter, F_UNLCK, false);
    return taken ? std::optional(qFromLittleEndian(number)) : std::nullopt;
}

void WriteQueue::enter(int longestWaitMs)
{
    if (file_ < 0 || inside_)
        return;
    Wait wait(file_, longestWaitMs);
    number_ = takeNumber(wait);
    if (number_) {
        const off_t before = byteOf(*number_ - 1);
        if (wait.lock(before))
            lockByte(file_, before, F_UNLCK, false);
    }
    inside_ = wait.lock(desk);
    if (!inside_)
        giveNumberBack();
}

void WriteQueue::giveNumberBack()
{
    if (number_)
        lockByte(file_, byteOf(*number_), F_UNLCK, false);
    number_.reset();
}

void WriteQueue::leave()
{
    if (!inside_)
        return;
    inside_ = false;
    lockByte(file_, desk, F_UNLCK, false);
    giveNumberBack();
}

/// The lock of the one who has a file alone; within the process it is taken once.
class Alone::Lock
{
public:
    explicit Lock(const QString &databaseFile) : file_(openQueueFile(databaseFile))
    {
        if (file_ < 0)
            throw Error(Error::ReadOnly, QStringLiteral("No se puede escribir en la carpeta de '%1'.")
                                             .arg(QDir::toNativeSeparators(databaseFile)));
        id_ = idOf(file_);
        if (!ownFiles.has(id_) && lockByte(file_, presence, F_WRLCK, false) != 0) {
            ::close(file_);
            throw Error(Error::Locked, QStringLiteral("El archivo '%1' está en uso por otra terminal.")
                                           .arg(QDir::toNativeSeparators(databaseFile)));
        }
        ownFiles.add(id_);
    }
    ~Lock()
    {
        ownFiles.take(id_);
        ::close(file_);
    }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

private:
    int file_;
    FileId id_ = {};
};

Alone::Alone(const QString &databaseFile) : lock_(std::make_unique<Lock>(databaseFile))
{
}

Alone::~Alone() = default;

} // namespace dao
