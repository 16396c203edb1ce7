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
 * Asks all checkers of the application whether a product may be offered. It may be offered unless a checker that takes
 * part in one of the kinds of check refuses it. Without such a checker every product may be offered.
 *
 * Any thread may call isValid(), and so may a running checker: the lock is recursive, and the checkers run under it. A
 * deadlock is possible if a checker asks RVPageOrganizationManager and the calculator there asks this registry.
 *
 * All other functions take no lock. isValidWorker() and isValidBoxStyle() may call the checkers from several threads at
 * once. registerChecker(), unregisterChecker() and clearCaches() can crash while isValid() runs in another thread: call
 * them while no other thread uses the registry, typically when the application starts and ends.
 *
 * A checker may call them too, but a running query uses the checkers that were registered at its start. A checker that
 * is unregistered during a query is still called once, so it must live until then. A checker that is registered during
 * a query is not called, but isValid() caches the result: clear the caches after the query.
 *
 * @par Example
 * @snippet tst_guide_services.cpp registry
 *
 * @ingroup services
 */
class RVPRODUCTBASE_EXPORT RVProductCheckerRegistry : public RVSingleton<RVProductCheckerRegistry>
{
public:
    /// A registry without checkers. Applications use instance() instead.
    RVProductCheckerRegistry();
    virtual ~RVProductCheckerRegistry();

    /// Adds a checker, which the caller keeps owning. A checker that is registered twice is called twice. Null adds
    /// nothing. Empties the cache.
    void registerChecker(RVProductChecker *checker);
    /// Removes all registrations of a checker. Empties the cache.
    void unregisterChecker(RVProductChecker *checker);
    /// Empties the cache. It takes no lock, so it can crash while isValid() runs in another thread.
    void clearCaches();

    /// True unless a checker refuses. The result is cached for the type and exactly these kinds.
    bool isValid(const RVProductType &type, RVProductCheckerType kinds) const;
    /// The same without the cache and the lock: calls the checkers in the order of their registration, up to the first
    /// refusal.
    bool isValidWorker(const RVProductType &type, RVProductCheckerType kinds) const;
    /// True unless a checker refuses the type with these options. The result is not cached, and no lock is taken.
    bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants,
                         RVProductCheckerType kinds) const;

private:
    bool ask(const RVProductType &type, RVProductCheckerType kinds) const;

    QList<RVProductChecker *> myCheckers;
    mutable QRecursiveMutex myMutex;
    mutable QHash<std::pair<RVProductType, RVProductCheckerType>, bool> myCache;
};

#endif
