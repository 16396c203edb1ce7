#ifndef RVOPTIONCHECK_P_H
#define RVOPTIONCHECK_P_H

#include "RVCheckedOption_p.h"

class RVCatalogueProduct;
class RVFindingReport;

/// Checks the options of a product.
class RVOptionCheck
{
public:
    explicit RVOptionCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueProduct &product);

private:
    RVCheckedOption checkForm(const RVCatalogueElement &form);
    void checkKeyAndValue(const RVCheckedOption &option);
    void checkDuplicates(const RVOptionsByKey &options);

    RVFindingReport *myReport;
};

#endif
