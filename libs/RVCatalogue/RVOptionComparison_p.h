#ifndef RVOPTIONCOMPARISON_P_H
#define RVOPTIONCOMPARISON_P_H

class RVCatalogueProduct;
class RVProductChanges;

/// Adds the differences of the options, which are found by key and value, and of the default of each key. The second
/// one of two equal options is compared with the second one of the other product.
void rvCompareOptions(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);

#endif
