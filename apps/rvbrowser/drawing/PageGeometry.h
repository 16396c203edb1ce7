#ifndef PAGEGEOMETRY_H
#define PAGEGEOMETRY_H

#include <RVBarcodeDefinitionList.h>
#include <RVPageSizeSpec.h>

#include <QList>
#include <QRect>

class RVCatalogueProduct;

/// The page of a product in tenths of a millimetre, as far as a catalogue tells: it has the area of the size class and
/// the usual proportions of the orientation. Around it goes the usual bleed. Both are assumed, as no catalogue tells
/// them.
class PageGeometry
{
public:
    PageGeometry() = default; ///< No page.
    /// No page for a product without exactly one size class and one orientation.
    explicit PageGeometry(const RVCatalogueProduct &product);

    bool isValid() const { return mySpec.usableSize().isValid(); }
    QSize usableSize() const { return mySpec.usableSize(); }
    RVMargins bleed() const { return mySpec.bleedMargins(); }
    /// Both relative to the page with its bleed.
    /// @{
    QRect totalRect() const { return QRect(QPoint(), mySpec.totalSize()); }
    QRect usableRect() const { return QRect(mySpec.topLeftOffsetOfUsablePrintArea(), mySpec.usableSize()); }
    /// A barcode, whose place counts from the corner of the usable area.
    QRectF barcodeRect(const RVBarcodeDefinition &barcode) const;
    /// @}
    /// The pages that have barcodes, in ascending order.
    QList<int> barcodePages() const;
    const RVBarcodeDefinitionList &barcodes() const { return myBarcodes; }

private:
    RVPageSizeSpec mySpec;
    RVBarcodeDefinitionList myBarcodes;
};

#endif
