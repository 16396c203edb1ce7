#ifndef RVDUPLICATES_P_H
#define RVDUPLICATES_P_H
#include "RVCatalogueCheck.h"
#include "RVCatalogueProduct.h"
class RVDuplicates
{
public:
    explicit RVDuplicates(const RVCatalogueCheck &) { }
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &) { return {}; }
};
#endif
