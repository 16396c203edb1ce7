#ifndef RVPAGEORGANIZATIONCALCULATOR_H
#define RVPAGEORGANIZATIONCALCULATOR_H

#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"

class RVProductType;

/// Computes the page counts of a product type for RVPageOrganizationManager; the application implements it.
/// @ingroup services
class RVPRODUCTBASE_EXPORT RVPageOrganizationCalculator
{
public:
    virtual ~RVPageOrganizationCalculator();

    /// Called under the manager's lock, so by one thread at a time. It may ask the manager for other product types,
    /// but must not replace itself.
    virtual RVPageCountOrganization calculate(const RVProductType &type) = 0;
};

#endif
