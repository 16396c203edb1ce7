#ifndef RVPRICECLASSCHECK_P_H
#define RVPRICECLASSCHECK_P_H

#include "RVCatalogueElement.h"

class RVFindingReport;

/// Price class of an add-on.
class RVPriceClassCheck
{
public:
    explicit RVPriceClassCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueElement &element, QLatin1StringView name);

private:
    RVFindingReport *myReport;
};

#endif
