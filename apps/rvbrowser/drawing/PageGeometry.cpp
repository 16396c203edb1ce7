#include "PageGeometry.h"

#include <RVCatalogueProduct.h>

#include <RVBleedMargin.h>

#include <algorithm>
#include <cmath>

namespace {

/// In tenths of a millimetre.
const RVBleedMargin &usualBleed()
{
    static const RVBleedMargin theBleed(30, 30);
    return theBleed;
}

constexpr double TENTHS_PER_CENTIMETRE = 100;

QSize usableSizeOf(const RVCatalogueProduct &product)
{
    const int area = product.spaceMagnitude().normativeSize();
    const RVOrientation orientation = product.orientation();
    const bool hasOrientation = orientation.encodeBits().size() == 1;
    if (area == 0 || !hasOrientation)
        return QSize();
    const double ratio = orientation.defaultWidthHeightRatio();
    const double height = std::sqrt(area / ratio);
    return QSizeF(height * ratio * TENTHS_PER_CENTIMETRE, height * TENTHS_PER_CENTIMETRE).toSize();
}

}

PageGeometry::PageGeometry(const RVCatalogueProduct &product)
    : mySpec(usableSizeOf(product), RVMargins(usualBleed().vertical(), usualBleed().horizontal())),
      myBarcodes(product.barcodes())
{ }

QRectF PageGeometry::barcodeRect(const RVBarcodeDefinition &barcode) const
{
    // A place that was too large to be stored is at the limit of whole numbers, so it moves as a real one.
    return QRectF(barcode.rect()).translated(mySpec.topLeftOffsetOfUsablePrintArea());
}

QList<int> PageGeometry::barcodePages() const
{
    QList<int> pages;
    for (const RVBarcodeDefinition &barcode : myBarcodes) {
        if (!pages.contains(barcode.pageNr()))
            pages += barcode.pageNr();
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}
