#ifndef RVBARCODEDEFINITIONLIST_H
#define RVBARCODEDEFINITIONLIST_H

#include "RVBarcodeDefinition.h"
#include "RVProductBaseExport.h"

#include <QList>
#include <QRegion>

/// The barcodes of a product. Read from the products XML or, one at a time, from an order transfer; what is invalid is
/// left out.
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVBarcodeDefinitionList : public QList<RVBarcodeDefinition>
{
public:
    /// Reads every child element "barcode".
    static RVBarcodeDefinitionList createFromProductsXML(const QDomElement &parent, const RVDistanceUnit &unit);
    /// Reads the element itself; empty unless it is a "barcode".
    static RVBarcodeDefinitionList createFromXTCI(const QDomElement &element, const RVDistanceUnit &unit);

    /// Those of one page, in their order.
    RVBarcodeDefinitionList barcodesOnPage(int pageNr) const;
    /// All rectangles together, whatever their pages.
    QRegion occupiedRegion() const;
    /// The first with exactly this rectangle; an invalid one where there is none.
    RVBarcodeDefinition findDefinition(const QRect &rect) const;

    /// Takes in the definitions of @p other: each is appended unless it is here already, and replaces what was at the
    /// same rectangle. Cost grows with the product of the sizes.
    void updateDefinitions(const RVBarcodeDefinitionList &other);

    /// No strict order: a shorter list comes first; of two lists of the same length, the one whose definitions are all
    /// less than their counterparts.
    bool operator<(const RVBarcodeDefinitionList &other) const;
};

#endif
