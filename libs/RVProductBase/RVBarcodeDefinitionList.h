#ifndef RVBARCODEDEFINITIONLIST_H
#define RVBARCODEDEFINITIONLIST_H

#include "RVBarcodeDefinition.h"
#include "RVProductBaseExport.h"

#include <QList>
#include <QRegion>

/// The barcodes of a product. They are read from the products XML or, one at a time, from an order transfer. Invalid
/// ones are left out.
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

    /// The barcodes of one page, in their order.
    RVBarcodeDefinitionList barcodesOnPage(int pageNr) const;
    /// The union of all rectangles, on all pages.
    QRegion occupiedRegion() const;
    /// The first definition with exactly this rectangle, on any page; an invalid one if there is none.
    RVBarcodeDefinition findDefinition(const QRect &rect) const;

    /// Adds the definitions of @p other. A definition that is in the list already stays in its place; any other is
    /// appended. If findDefinition() finds a valid definition at its rectangle, that one and all equal ones are
    /// removed. So of two different definitions at the rectangle the second stays. The cost grows with the product of
    /// the sizes.
    void updateDefinitions(const RVBarcodeDefinitionList &other);

    /// This is no strict order: a shorter list comes first; of two lists of the same length, the one whose definitions
    /// are all less than their counterparts comes first. Only this operator belongs to the list: `>`, `<=` and `>=` are
    /// those of QList, which compares element by element, and they disagree with it. For a shorter list that begins
    /// with a greater definition, `a < b` and `a > b` are both true.
    bool operator<(const RVBarcodeDefinitionList &other) const;
};

#endif
