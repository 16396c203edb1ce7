#ifndef RVBARCODECHECK_P_H
#define RVBARCODECHECK_P_H

#include "RVCatalogueElement.h"

#include <RVDistanceUnit.h>

#include <QRect>
#include <QVarLengthArray>

#include <optional>

class RVCatalogueProduct;
class RVFindingReport;
struct RVCheckedPageCounts;

/// Barcodes of a product, their unit, and where they are on its pages. A check is for one product.
class RVBarcodeCheck
{
public:
    /// @p pageCounts are those of the product.
    RVBarcodeCheck(RVFindingReport *report, const RVCheckedPageCounts &pageCounts)
        : myReport(report),
          myPageCounts(pageCounts)
    { }

    void check(const RVCatalogueProduct &product);

private:
    struct PageSize;
    struct Barcode
    {
        RVCatalogueElement element;
        QRect area; // in tenths of a millimetre
        int page;
    };

    void checkMissing(const RVCatalogueElement &element);
    std::optional<Barcode> read(const RVCatalogueElement &element, const RVDistanceUnit &unit);
    void checkPage(const Barcode &barcode);
    void checkArea(const Barcode &barcode, const PageSize &pageSize);
    bool checkEdges(const Barcode &barcode, const PageSize &pageSize);
    bool checkExactPage(const Barcode &barcode, const PageSize &pageSize);
    bool addOutside(const Barcode &barcode, QLatin1StringView attribute, const QString &text);
    void checkOverlap(const Barcode &barcode);

    RVFindingReport *myReport;
    const RVCheckedPageCounts &myPageCounts;
    QVarLengthArray<Barcode, 4> myPlaced; // those before, as far as they are on a page
};

#endif
