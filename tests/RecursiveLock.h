#ifndef RECURSIVELOCK_H
#define RECURSIVELOCK_H

#include <QDeadlineTimer>
#include <QRecursiveMutex>

/// The function that QRecursiveMutex::lock() calls in the library of Qt: the type of its argument, and its name there.
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
using RecursiveLockTimeout = QDeadlineTimer;
inline constexpr char RECURSIVE_TRY_LOCK[] = "_ZN15QRecursiveMutex7tryLockE14QDeadlineTimer";
#else
using RecursiveLockTimeout = int;
inline constexpr char RECURSIVE_TRY_LOCK[] = "_ZN15QRecursiveMutex7tryLockEi";
#endif

#endif
