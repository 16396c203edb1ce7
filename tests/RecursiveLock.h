#ifndef RECURSIVELOCK_H
#define RECURSIVELOCK_H

#include <QDeadlineTimer>
#include <QRecursiveMutex>

/// What QRecursiveMutex::lock() calls in Qt's library: the type of its argument, and the name of the function there.
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
using RecursiveLockTimeout = QDeadlineTimer;
inline constexpr char RECURSIVE_TRY_LOCK[] = "_ZN15QRecursiveMutex7tryLockE14QDeadlineTimer";
#else
using RecursiveLockTimeout = int;
inline constexpr char RECURSIVE_TRY_LOCK[] = "_ZN15QRecursiveMutex7tryLockEi";
#endif

#endif
