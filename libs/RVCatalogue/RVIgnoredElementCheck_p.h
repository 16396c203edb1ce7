#ifndef RVIGNOREDELEMENTCHECK_P_H
#define RVIGNOREDELEMENTCHECK_P_H

#include "RVCatalogueElement.h"

class RVCatalogueProduct;
class RVFindingReport;

/// Finds elements of a product that are not read, because only the first of their kind is.
class RVIgnoredElementCheck
{
public:
    explicit RVIgnoredElementCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueProduct &product);

private:
    void checkInnerProducts(const RVCatalogueElement &product);
    void checkOthers(const RVCatalogueElement &first, QLatin1StringView name);

    RVFindingReport *myReport;
};

#endif
