#ifndef RVSINGLETON_H
#define RVSINGLETON_H

#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

/**
 * Gives the deriving class T one instance for the whole process, reached through T::instance().
 *
 * The instance is made with T's default constructor on first access, by whichever thread comes first, and is never
 * deleted: it outlives every object with static storage. The shared library that owns T declares
 * `extern template class EXPORT RVSingleton<T>;` in its header and instantiates it in one source, so that an
 * application and its plug-ins reach the same instance.
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

    /// Called once on the new instance before anyone else sees it; a class that has something to set up hides it with
    /// its own. It runs under the lock of instance(), so it must not call that.
    void setupInstance() { }

protected:
    RVSingleton() = default;
    ~RVSingleton() = default;
};

// Not inline: the two statics stand for the whole process, so they belong to the one library that instantiates T.
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
