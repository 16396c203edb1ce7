#ifndef RVOPTIONCOMPARISON_P_H
#define RVOPTIONCOMPARISON_P_H

class RVCatalogueProduct;
class RVProductChanges;

/// Adds what differs in the options, which are found by key and value, and in the default of each key. An option that
/// is there twice is compared with the second one of the other product.
void rvCompareOptions(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);

#endif
