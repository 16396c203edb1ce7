#ifndef RVBARCODEDEFINITIONLIST_H
#define RVBARCODEDEFINITIONLIST_H

#include "RVBarcodeDefinition.h"
#include "RVProductBaseExport.h"

#include <QList>
#include <QRegion>

/// The barcodes of a product. Read from the products XML or, one at a time, from an order transfer; what is invalid is
/// left out.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVBarcodeDefinitionList
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
    /// The first with exactly this rectangle, on whatever page; an invalid one where there is none.
    RVBarcodeDefinition findDefinition(const QRect &rect) const;

    /// Takes in the definitions of @p other. One that is here already stays in its place; any other is appended. It
    /// replaces what findDefinition() finds at its rectangle, with all that are equal to that, but only where that is
    /// valid. So of two different definitions that were at the rectangle the second stays. Cost grows with the product
    /// of the sizes.
    void updateDefinitions(const RVBarcodeDefinitionList &other);

    /// No strict order: a shorter list comes first; of two lists of the same length, the one whose definitions are all
    /// less than their counterparts. Only this one operator is the list's: `>`, `<=` and `>=` are those of QList, which
    /// compares element by element, and they disagree with it. For a shorter list that begins with a greater
    /// definition, `a < b` and `a > b` are both true.
    bool operator<(const RVBarcodeDefinitionList &other) const;
};

#endif
