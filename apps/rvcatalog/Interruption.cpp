#include "Interruption.h"

#include <QMutex>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <iterator>

namespace {

constexpr int SIGNALS[] = { SIGINT, SIGTERM };
constexpr std::size_t READ_END = 0;
constexpr std::size_t WRITE_END = 1;
/// The milliseconds in which a second signal counts as the same request. Programs that end a group of processes often
/// send the signal to each of them, and to the group as well.
constexpr qint64 ONE_REQUEST = 400;

/// The state of the interruption, one for the whole process, because signals go to the process.
struct State
{
    QBasicMutex mutex;
    int users = 0;
    struct sigaction before[std::size(SIGNALS)] = {};
    std::atomic_int signal = 0;
    std::atomic<qint64> signalTime = 0;
    std::atomic_int pipe[2] = { -1, -1 };
};
State theState;

/// The milliseconds of a monotonic clock.
qint64 now()
{
    timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

void endAtOnce(int signal)
{
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void remember(int signal)
{
    const int error = errno;
    if (theState.signal == 0) {
        theState.signalTime = now();
        theState.signal = signal;
        [[maybe_unused]] const auto written = ::write(theState.pipe[WRITE_END], "", 1);
    } else if (now() - theState.signalTime >= ONE_REQUEST) {
        endAtOnce(signal);
    }
    errno = error;
}

void openPipe()
{
    int ends[2] = { -1, -1 };
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    theState.pipe[READ_END] = ends[READ_END];
    theState.pipe[WRITE_END] = ends[WRITE_END];
}

void takeSignals()
{
    struct sigaction action = {};
    action.sa_handler = remember;
    action.sa_flags = SA_RESTART;
    for (const int signal : SIGNALS)
        sigaddset(&action.sa_mask, signal);
    for (std::size_t i = 0; i < std::size(SIGNALS); ++i) {
        ::sigaction(SIGNALS[i], nullptr, &theState.before[i]);
        if (theState.before[i].sa_handler != SIG_IGN)
            ::sigaction(SIGNALS[i], &action, nullptr);
    }
}

void giveBack()
{
    for (std::size_t i = 0; i < std::size(SIGNALS); ++i)
        ::sigaction(SIGNALS[i], &theState.before[i], nullptr);
    for (std::atomic_int &end : theState.pipe)
        ::close(end.exchange(-1));
    theState.signal = 0;
}

}

Interruption::Interruption()
{
    const QMutexLocker locker(&theState.mutex);
    if (theState.users++ > 0)
        return;
    openPipe();
    takeSignals();
}

Interruption::~Interruption()
{
    const QMutexLocker locker(&theState.mutex);
    if (--theState.users == 0)
        giveBack();
}

int Interruption::signal()
{
    return theState.signal;
}

int Interruption::descriptor()
{
    return theState.pipe[READ_END];
}
