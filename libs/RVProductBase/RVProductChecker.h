#ifndef RVPRODUCTCHECKER_H
#define RVPRODUCTCHECKER_H

#include "RVProductBaseExport.h"

#include <QtGlobal>

class RVArticleVariants;
class RVProductType;

/// The kinds of check, one bit each; the application gives them their meaning.
using RVProductCheckerType = quint32;

/**
 * Decides which products may be offered. The application implements it, registers it with RVProductCheckerRegistry and
 * keeps its ownership.
 *
 * RVProductCheckerRegistry::isValid() calls it under the lock of the registry, so from one thread at a time.
 * RVProductCheckerRegistry::isValidWorker() and RVProductCheckerRegistry::isValidBoxStyle() call it without the lock,
 * possibly from several threads at once.
 *
 * @par Example
 * @snippet tst_guide_services.cpp checker
 *
 * @ingroup services
 */
class RVPRODUCTBASE_EXPORT RVProductChecker
{
public:
    // The order of the virtual operations is part of the binary interface.
    virtual ~RVProductChecker();

    /// True when the product may be offered. RVProductCheckerRegistry::isValid() caches the result. The function runs
    /// under the lock of the registry, so it must not wait for a thread that uses the registry. It must not ask
    /// RVPageOrganizationManager if the calculator there asks the registry, see RVProductCheckerRegistry.
    virtual bool isValid(const RVProductType &type) const = 0;
    /// The kinds of check that this checker takes part in.
    virtual RVProductCheckerType checkerTypes() const = 0;
    /// True when the product may be offered with these options. The result is not cached.
    virtual bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const = 0;
};

#endif
