// Tells ThreadSanitizer of the locks that Debian's Qt takes inside its own, uninstrumented library.
//
// QMutex reports itself from its header. QRecursiveMutex, QReadWriteLock, QSemaphore and the queue of posted events do
// their work in libQt6Core, so without this file everything that they guard looks like a race, and a lock that is
// missing looks like all the others. A program that links this file calls Qt's own functions through the ones below.
// Nothing of our own code has to be suppressed, and a lock that is taken out is found.
#include "RecursiveLock.h"

#include <QCoreApplication>
#include <QReadWriteLock>
#include <QScopedValueRollback>
#include <QSemaphore>
#include <QThread>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

/// QtTest watches the time of each test from a thread of its own and waits for its end by a QWaitCondition, which is
/// Qt's own lock between Qt's own threads. None of our code runs under either name.
extern "C" Q_DECL_EXPORT const char *__tsan_default_suppressions()
{
    return "race:^QWaitCondition::\n"
           "called_from_lib:libQt6Test.so\n";
}

namespace {

template<typename Function>
Function nextFunction(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

/// A lock for writing has one owner, and our threads hold no two of them.
thread_local const QReadWriteLock *theWrittenLock = nullptr;

/// Stands for the lock of the main thread's queue, into which other threads post their signals.
char theQueue;
/// True while Qt may be making an event that this thread posts.
thread_local bool isPosting = false;

/// Sees each event of the main thread before it is delivered.
class QueueReader : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *) override
    {
        __tsan_acquire(&theQueue);
        return false;
    }
};

void readQueue()
{
    qApp->installEventFilter(new QueueReader(qApp));
}

}

Q_COREAPP_STARTUP_FUNCTION(readQueue)

// An event that is posted is complete when its last part has been allocated: Qt fills it unseen.
extern "C" Q_DECL_EXPORT void __sanitizer_malloc_hook(const volatile void *, size_t)
{
    if (isPosting)
        __tsan_release(&theQueue);
}

void QMetaObject::activate(QObject *sender, const QMetaObject *metaObject, int signal, void **arguments)
{
    static const auto next = nextFunction<void (*)(QObject *, const QMetaObject *, int, void **)>(
            "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    const QScopedValueRollback<bool> posting(isPosting, true);
    next(sender, metaObject, signal, arguments);
}

// QThread::finished() is emitted inside libQt6Core, as the last that a thread does.
extern "C" void constructThread(QThread *thread, QObject *parent) __asm__("_ZN7QThreadC2EP7QObject");
extern "C" void constructThread(QThread *thread, QObject *parent)
{
    static const auto next = nextFunction<void (*)(QThread *, QObject *)>("_ZN7QThreadC2EP7QObject");
    next(thread, parent);
    QObject::connect(thread, &QThread::finished, thread, [] { isPosting = true; }, Qt::DirectConnection);
}

bool QRecursiveMutex::tryLock(RecursiveLockTimeout timeout) noexcept
{
    static const auto next = nextFunction<bool (*)(QRecursiveMutex *, RecursiveLockTimeout)>(RECURSIVE_TRY_LOCK);
    const bool locked = next(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QRecursiveMutex::unlock() noexcept
{
    static const auto next = nextFunction<void (*)(QRecursiveMutex *)>("_ZN15QRecursiveMutex6unlockEv");
    __tsan_release(this);
    next(this);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
bool QReadWriteLock::tryLockForRead(QDeadlineTimer timeout)
{
    static const auto next = nextFunction<bool (*)(QReadWriteLock *, QDeadlineTimer)>(
            "_ZN14QReadWriteLock14tryLockForReadE14QDeadlineTimer");
    constexpr unsigned flags = __tsan_mutex_read_lock | __tsan_mutex_try_lock;
    __tsan_mutex_pre_lock(this, flags);
    const bool locked = next(this, timeout);
    __tsan_mutex_post_lock(this, locked ? flags : flags | __tsan_mutex_try_lock_failed, 0);
    return locked;
}

bool QReadWriteLock::tryLockForWrite(QDeadlineTimer timeout)
{
    static const auto next = nextFunction<bool (*)(QReadWriteLock *, QDeadlineTimer)>(
            "_ZN14QReadWriteLock15tryLockForWriteE14QDeadlineTimer");
    constexpr unsigned flags = __tsan_mutex_try_lock;
    __tsan_mutex_pre_lock(this, flags);
    const bool locked = next(this, timeout);
    __tsan_mutex_post_lock(this, locked ? flags : flags | __tsan_mutex_try_lock_failed, 0);
    if (locked)
        theWrittenLock = this;
    return locked;
}
#else
void QReadWriteLock::lockForRead()
{
    static const auto next = nextFunction<void (*)(QReadWriteLock *)>("_ZN14QReadWriteLock11lockForReadEv");
    __tsan_mutex_pre_lock(this, __tsan_mutex_read_lock);
    next(this);
    __tsan_mutex_post_lock(this, __tsan_mutex_read_lock, 0);
}

void QReadWriteLock::lockForWrite()
{
    static const auto next = nextFunction<void (*)(QReadWriteLock *)>("_ZN14QReadWriteLock12lockForWriteEv");
    __tsan_mutex_pre_lock(this, 0);
    next(this);
    __tsan_mutex_post_lock(this, 0, 0);
    theWrittenLock = this;
}
#endif

void QReadWriteLock::unlock()
{
    static const auto next = nextFunction<void (*)(QReadWriteLock *)>("_ZN14QReadWriteLock6unlockEv");
    const unsigned flags = theWrittenLock == this ? 0 : __tsan_mutex_read_lock;
    if (theWrittenLock == this)
        theWrittenLock = nullptr;
    __tsan_mutex_pre_unlock(this, flags);
    next(this);
    __tsan_mutex_post_unlock(this, flags);
}

void QSemaphore::release(int n)
{
    static const auto next = nextFunction<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    next(this, n);
}

void QSemaphore::acquire(int n)
{
    static const auto next = nextFunction<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7acquireEi");
    next(this, n);
    __tsan_acquire(this);
}
