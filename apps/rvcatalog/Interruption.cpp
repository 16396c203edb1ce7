#include "Interruption.h"

#include <QMutex>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <iterator>

namespace {

constexpr int SIGNALS[] = { SIGINT, SIGTERM };
/// The milliseconds in which a second signal counts as the same request. Programs that end a group of processes often
/// send the signal to each of them, and to the group as well.
constexpr qint64 ONE_REQUEST = 400;

/// No file descriptor.
constexpr int CLOSED = -1;

/// The state of the interruption, one for the whole process, because signals go to the process.
struct State
{
    QBasicMutex mutex;
    int users = 0;
    struct sigaction before[std::size(SIGNALS)] = {};
    std::atomic_int signal = 0;
    std::atomic<qint64> signalTime {}; // set together with the signal
    /// The ends of a pipe.
    std::atomic_int readEnd = CLOSED;
    std::atomic_int writeEnd = CLOSED;
};
State theState;

/// The milliseconds of a monotonic clock, which is read with clock_gettime(), as signal handlers may.
qint64 now()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
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
        const char wake {};
        [[maybe_unused]] const auto written = ::write(theState.writeEnd, &wake, sizeof wake);
    } else if (now() - theState.signalTime >= ONE_REQUEST) {
        endAtOnce(signal);
    }
    errno = error;
}

void openPipe()
{
    int ends[2] = {};
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    theState.readEnd = ends[0];
    theState.writeEnd = ends[1];
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
    ::close(theState.readEnd.exchange(CLOSED));
    ::close(theState.writeEnd.exchange(CLOSED));
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
    return theState.readEnd;
}
