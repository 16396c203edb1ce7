#ifndef RVIDCHECK_P_H
#define RVIDCHECK_P_H

#include "RVCatalogueElement.h"

class RVCatalogueProduct;
class RVFindingReport;

/// Checks type, article id and shipping group of a product.
class RVIdCheck
{
public:
    explicit RVIdCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueProduct &product);

private:
    void addInvalidArticleId(const RVCatalogueElement &product);
    void checkType(const RVCatalogueElement &product);
    void checkShippingGroup(const RVCatalogueElement &product);

    RVFindingReport *myReport;
};

#endif
