#ifndef RVSINGLETON_H
#define RVSINGLETON_H

#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

/**
 * Gives the deriving class T one instance for the whole process, reached through T::instance().
 *
 * The first thread that accesses the instance creates it with T's default constructor. It is never deleted, so it
 * outlives every object with static storage. The shared library that owns T declares `extern template class EXPORT
 * RVSingleton<T>;` in its header and instantiates it in one source, so that an application and its plug-ins reach the
 * same instance.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVSingleton
 * @snippet tst_examples_platform.cpp RVSingletonUse
 *
 * @ingroup templates
 */
template<typename T>
class Q_DECL_EXPORT RVSingleton
{
    Q_DISABLE_COPY_MOVE(RVSingleton)

public:
    /// The instance; the process owns it. Any thread.
    static T *instance();

    /// Sets up the new instance, once and before any other thread can access it. A class with something to set up hides
    /// this function with its own. It runs under the lock of instance(), so it must not call instance().
    void setupInstance() { }

protected:
    RVSingleton() = default;
    ~RVSingleton() = default;
};

// The function is not inline: its two statics exist once in the process, so they belong to the library that
// instantiates T.
template<typename T>
T *RVSingleton<T>::instance()
{
    static auto &theLock = *new QReadWriteLock;
    static T *theInstance = nullptr;
    {
        const QReadLocker locker(&theLock);
        if (theInstance)
            return theInstance;
    }
    const QWriteLocker locker(&theLock);
    if (!theInstance) {
        T *created = new T;
        created->setupInstance();
        theInstance = created;
    }
    return theInstance;
}

#endif
