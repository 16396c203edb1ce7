#ifndef RVPAGECOMPARISON_P_H
#define RVPAGECOMPARISON_P_H

class RVCatalogueProduct;
class RVProductChanges;

/// Adds the differences of page counts and of the spine.
/// @{
void rvComparePages(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);
void rvCompareSpines(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);
/// @}

#endif
