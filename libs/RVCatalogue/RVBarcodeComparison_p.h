#ifndef RVBARCODECOMPARISON_P_H
#define RVBARCODECOMPARISON_P_H

class RVCatalogueProduct;
class RVProductChanges;

/// Adds what differs in the barcodes. Those that are the same belong together; of the others the first on a page and
/// the first on that page, and so on; then the first of what is left.
void rvCompareBarcodes(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);

#endif
