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

/// Checks the barcodes of a product, their unit, and their places on its pages. An object checks one product.
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
        std::optional<int> page; // nothing if it cannot be read
    };

    void checkMissing(const RVCatalogueElement &element);
    std::optional<QRect> readArea(const RVCatalogueElement &element, const RVDistanceUnit &unit);
    void checkPage(const RVCatalogueElement &element, int page);
    void checkArea(const Barcode &barcode, const PageSize &pageSize);
    bool checkEdges(const Barcode &barcode, const PageSize &pageSize);
    bool checkExactPage(const Barcode &barcode, const PageSize &pageSize);
    bool addOutside(const Barcode &barcode, QLatin1StringView attribute, const QString &text);
    void checkOverlap(const Barcode &barcode);

    RVFindingReport *myReport;
    const RVCheckedPageCounts &myPageCounts;
    QVarLengthArray<Barcode, 4> myPlaced; // the earlier barcodes that are on a page
};

#endif
