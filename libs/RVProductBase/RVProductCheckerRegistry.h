#ifndef RVPRODUCTCHECKERREGISTRY_H
#define RVPRODUCTCHECKERREGISTRY_H

#include "RVProductBaseExport.h"
#include "RVProductChecker.h"
#include "RVProductType.h"
#include "RVSingleton.h"

#include <QHash>
#include <QList>
#include <QRecursiveMutex>

#include <utility>

class RVProductCheckerRegistry;

extern template class RVPRODUCTBASE_EXPORT RVSingleton<RVProductCheckerRegistry>;

/**
 * Asks all checkers of the application whether a product may be offered: it may when none of those that take part in
 * one of the kinds of check refuses. Without such a checker everything may be offered.
 *
 * Any thread may call isValid(), also a checker that is being asked: its lock is recursive, and the checkers run under
 * it. If a checker asks RVPageOrganizationManager there, whose calculator asks this registry, two threads that come
 * from the two sides wait for each other for ever.
 *
 * Everything else takes no lock. isValidWorker() and isValidBoxStyle() ask the checkers from several threads at once.
 * registerChecker(), unregisterChecker() and clearCaches() crash beside isValid() in another thread: call them while no
 * other thread asks, typically when the application starts and ends.
 *
 * A checker may call them too, but a question goes to those that were registered when it was asked. One that is
 * unregistered meanwhile is still called once, so it must live until then. One that is registered meanwhile is not
 * called, and isValid() remembers the answer all the same: clear the caches when the question is answered.
 *
 * @par Example
 * @snippet tst_guide_services.cpp registry
 *
 * @ingroup services
 */
class RVPRODUCTBASE_EXPORT RVProductCheckerRegistry : public RVSingleton<RVProductCheckerRegistry>
{
public:
    /// Without checkers. Applications take instance() instead.
    RVProductCheckerRegistry();
    virtual ~RVProductCheckerRegistry();

    /// Adds a checker, which stays the caller's; one that is registered twice is asked twice. Null adds nothing.
    /// Empties the cache.
    void registerChecker(RVProductChecker *checker);
    /// Removes a checker however often it is registered. Empties the cache.
    void unregisterChecker(RVProductChecker *checker);
    /// Forgets every answer. Takes no lock, so it crashes beside isValid() in another thread.
    void clearCaches();

    /// True unless a checker refuses. The answer for the type and exactly these kinds is remembered.
    bool isValid(const RVProductType &type, RVProductCheckerType kinds) const;
    /// The same, past the cache and without the lock: asks the checkers in the order of their registration, up to the
    /// first refusal.
    bool isValidWorker(const RVProductType &type, RVProductCheckerType kinds) const;
    /// True unless a checker refuses the type with these options. Nothing is remembered, and no lock is taken.
    bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants,
                         RVProductCheckerType kinds) const;

private:
    bool ask(const RVProductType &type, RVProductCheckerType kinds) const;

    QList<RVProductChecker *> myCheckers;
    mutable QRecursiveMutex myMutex;
    mutable QHash<std::pair<RVProductType, RVProductCheckerType>, bool> myCache;
};

#endif
