#include "RVProductCheckerRegistry.h"

#include <QMutexLocker>

#include <algorithm>

template class RVSingleton<RVProductCheckerRegistry>;

namespace {

/// True when every responsible checker accepts.
template<typename Accepts>
bool noneRefuses(const QList<RVProductChecker *> &checkers, RVProductCheckerType kinds, Accepts accepts)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a checker may call back and change the list.
    const QList<RVProductChecker *> asked = checkers;
    return std::all_of(asked.begin(), asked.end(), [&](const RVProductChecker *checker) {
        return (checker->checkerTypes() & kinds) == 0 || accepts(*checker);
    });
}

}

RVProductCheckerRegistry::RVProductCheckerRegistry() = default;

RVProductCheckerRegistry::~RVProductCheckerRegistry() = default;

void RVProductCheckerRegistry::registerChecker(RVProductChecker *checker)
{
    if (checker)
        myCheckers.append(checker);
    clearCaches();
}

void RVProductCheckerRegistry::unregisterChecker(RVProductChecker *checker)
{
    myCheckers.removeAll(checker);
    clearCaches();
}

void RVProductCheckerRegistry::clearCaches()
{
    myCache.clear();
}

bool RVProductCheckerRegistry::isValid(const RVProductType &type, RVProductCheckerType kinds) const
{
    const QMutexLocker locker(&myMutex);
    const auto cached = myCache.constFind(std::pair(type, kinds));
    return cached != myCache.constEnd() ? *cached : ask(type, kinds);
}

bool RVProductCheckerRegistry::ask(const RVProductType &type, RVProductCheckerType kinds) const
{
    // A checker may change the caller's object.
    const std::pair key(type, kinds);
    const bool result = isValidWorker(type, kinds);
    myCache.insert(key, result);
    return result;
}

bool RVProductCheckerRegistry::isValidWorker(const RVProductType &type, RVProductCheckerType kinds) const
{
    return noneRefuses(myCheckers, kinds, [&](const RVProductChecker &checker) { return checker.isValid(type); });
}

bool RVProductCheckerRegistry::isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants,
                                               RVProductCheckerType kinds) const
{
    return noneRefuses(myCheckers, kinds,
                       [&](const RVProductChecker &checker) { return checker.isValidBoxStyle(type, variants); });
}
