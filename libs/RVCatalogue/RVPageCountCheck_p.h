#ifndef RVPAGECOUNTCHECK_P_H
#define RVPAGECOUNTCHECK_P_H

#include "RVCatalogueElement.h"

#include <RVPageCountOrganization.h>

class RVCatalogueProduct;
class RVFindingReport;

/// The page counts of a product, and a mark that other checks can rely on them.
struct RVCheckedPageCounts
{
    RVPageCountOrganization counts;
    bool areValid = false;
};

/// Checks the page counts of a product.
class RVPageCountCheck
{
public:
    explicit RVPageCountCheck(RVFindingReport *report) : myReport(report) { }

    RVCheckedPageCounts check(const RVCatalogueProduct &product);

private:
    bool checkValidity(const RVCatalogueElement &product, const RVPageCountOrganization &counts, int pieces);
    bool checkSteps(const RVCatalogueElement &product, const RVPageCountOrganization &counts);
    bool addInvalid(const RVCatalogueElement &product, QLatin1StringView attribute, const QString &text);

    RVFindingReport *myReport;
};

#endif
