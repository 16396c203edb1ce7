#ifndef RVPAGEORGANIZATIONCALCULATOR_H
#define RVPAGEORGANIZATIONCALCULATOR_H

#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"

class RVProductType;

/// Computes the page counts of a product type for RVPageOrganizationManager; the application implements it.
/// @par Example
/// @snippet tst_guide_services.cpp calculator
/// @ingroup services
class RVPRODUCTBASE_EXPORT RVPageOrganizationCalculator
{
public:
    virtual ~RVPageOrganizationCalculator();

    /// Returns the page counts of the type. The manager calls it under its lock, so from one thread at a time. It may
    /// ask the manager for other product types; a request for @p type itself would cause an endless recursion. It must
    /// not replace itself. It must not ask RVProductCheckerRegistry if a checker asks the manager, because two threads
    /// would then wait for each other.
    virtual RVPageCountOrganization calculate(const RVProductType &type) = 0;
};

#endif
