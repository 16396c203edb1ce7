#ifndef RVBARCODECOMPARISON_P_H
#define RVBARCODECOMPARISON_P_H

class RVCatalogueProduct;
class RVProductChanges;

/// Adds the differences of the barcodes. Equal barcodes belong together. Of the others, the first on a page belongs to
/// the first on the same page, and so on. The remaining ones belong together in their order.
void rvCompareBarcodes(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes);

#endif
