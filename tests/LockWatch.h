#ifndef LOCKWATCH_H
#define LOCKWATCH_H

#include "RecursiveLock.h"

#include <dlfcn.h>

#include <functional>

/// Calls back while it lives, each time the thread that made it asks for a QRecursiveMutex or has given one back. One
/// at a time and thread. The library, too, calls Qt's functions through those below, so one source of a program
/// includes this.
class LockWatch
{
    Q_DISABLE_COPY_MOVE(LockWatch)

public:
    using Callback = std::function<void()>;

    LockWatch(const Callback &asked, const Callback &givenBack)
    {
        theAsked = asked;
        theGivenBack = givenBack;
    }
    ~LockWatch() { theAsked = theGivenBack = nullptr; }

    static void notifyAsked() { notify(theAsked); }
    static void notifyGivenBack() { notify(theGivenBack); }

private:
    static void notify(const Callback &callback)
    {
        if (callback)
            callback();
    }

    static inline thread_local Callback theAsked;
    static inline thread_local Callback theGivenBack;
};

bool QRecursiveMutex::tryLock(RecursiveLockTimeout timeout) noexcept
{
    using Function = bool (*)(QRecursiveMutex *, RecursiveLockTimeout);
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, RECURSIVE_TRY_LOCK));
    LockWatch::notifyAsked();
    return next(this, timeout);
}

void QRecursiveMutex::unlock() noexcept
{
    using Function = void (*)(QRecursiveMutex *);
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_ZN15QRecursiveMutex6unlockEv"));
    next(this);
    LockWatch::notifyGivenBack();
}

#endif
