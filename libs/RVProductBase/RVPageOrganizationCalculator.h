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

    /// Called under the manager's lock, so by one thread at a time. It may ask the manager for other product types; for
    /// @p type itself the manager would call it again, without end. It must not replace itself, nor ask
    /// RVProductCheckerRegistry where a checker asks the manager: two threads would wait for each other.
    virtual RVPageCountOrganization calculate(const RVProductType &type) = 0;
};

#endif
