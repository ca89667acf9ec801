#include "platform/dao/embedded/turn.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>

namespace dao
{

namespace
{

// Whoever writes holds the second byte. Whoever waits for it holds the first, and the others wait for that:
// so one who has just written does not overtake them.
constexpr off_t waitingRoom = 0;
constexpr off_t desk = 1;

int lockByte(int file, off_t byte, short kind, bool wait)
{
    struct flock lock = {};
    lock.l_type = kind;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return fcntl(file, wait ? F_OFD_SETLKW : F_OFD_SETLK, &lock);
}

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

bool waitFor(int file, off_t byte, const Deadline &deadline)
{
    while (lockByte(file, byte, F_WRLCK, deadline.made()) != 0) {
        if (errno != EINTR || deadline.over())
            return false;
    }
    return true;
}

} // namespace

QString queueFile(const QString &databaseFile)
{
    return databaseFile + QStringLiteral(".cola");
}

WriteQueue::WriteQueue(const QString &databaseFile)
    : file_(
          ::open(QFile::encodeName(queueFile(databaseFile)).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0660))
{
}

WriteQueue::~WriteQueue()
{
    if (file_ >= 0)
        ::close(file_);
}

void WriteQueue::enter(int longestWaitMs)
{
    if (file_ < 0 || inside_)
        return;
    if (lockByte(file_, waitingRoom, F_WRLCK, false) == 0 && lockByte(file_, desk, F_WRLCK, false) == 0) {
        inside_ = true;
    } else {
        const Deadline deadline(longestWaitMs);
        inside_ = waitFor(file_, waitingRoom, deadline) && waitFor(file_, desk, deadline);
    }
    lockByte(file_, waitingRoom, F_UNLCK, false);
}

void WriteQueue::leave()
{
    if (!inside_)
        return;
    inside_ = false;
    lockByte(file_, desk, F_UNLCK, false);
}

} // namespace dao
