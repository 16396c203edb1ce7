#ifndef RVPRODUCTCHECKER_H
#define RVPRODUCTCHECKER_H

#include "RVProductBaseExport.h"

#include <QtGlobal>

class RVArticleVariants;
class RVProductType;

/// Kinds of check, one bit each; the application gives them their meaning.
using RVProductCheckerType = quint32;

/**
 * Says which products may be offered. The application implements it, registers it with RVProductCheckerRegistry and
 * keeps owning it.
 *
 * RVProductCheckerRegistry::isValid() calls under the lock of the registry, so from one thread at a time.
 * RVProductCheckerRegistry::isValidWorker() and RVProductCheckerRegistry::isValidBoxStyle() call without it: from as
 * many threads at once as ask.
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

    /// True when the product may be offered. RVProductCheckerRegistry::isValid() remembers the answer. As it runs under
    /// the lock of the registry there, it must not wait for a thread that asks the registry; nor may it ask
    /// RVPageOrganizationManager when the calculator there asks the registry, see RVProductCheckerRegistry.
    virtual bool isValid(const RVProductType &type) const = 0;
    /// The kinds of check that this checker takes part in.
    virtual RVProductCheckerType checkerTypes() const = 0;
    /// True when the product may be offered with these options. Asked every time.
    virtual bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const = 0;
};

#endif
