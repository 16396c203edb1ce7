#ifndef RVPRODUCTCOMPARISON_H
#define RVPRODUCTCOMPARISON_H

#include "RVCatalogueExport.h"
#include "RVCatalogueProduct.h"
#include "RVProductChange.h"

#include <QList>

/**
 * The differences between two versions of a product:
 *
 * @code
 * for (const RVProductChange &change : RVProductComparison(oldBook, newBook).changes())
 *     qDebug() << change.label() << change.oldValue().text << change.newValue().text;
 * @endcode
 *
 * Values are compared, not texts: an alias and its keyword, 8 and 8.0, 8 mm and 0.8 cm are the same, and so is what
 * stands for its default and what is missing. What the ordering application does not read makes no difference: other
 * attributes and elements, comments, the order of attributes, options and barcodes, and the place of the product.
 *
 * Nor does an option without key or value, or a barcode without extent. Of page counts that both versions have, the
 * widths of the spine are compared at the first 10,000. The default comparison is of two null products.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVProductComparison
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVProductComparison
{
public:
    RVProductComparison() = default;
    /// A null product is one that is not there.
    RVProductComparison(const RVCatalogueProduct &oldProduct, const RVCatalogueProduct &newProduct);

    bool isNull() const { return myOld.isNull() && myNew.isNull(); } ///< True where there is no product.
    RVChangeKind kind() const; ///< Added and Removed where the other product is null.
    /// True where both are there, with different types: the same article under another type.
    bool isRenamed() const;

    /// The two versions; those that RVCatalogueComparison hands out have families, but their number and the places of
    /// their elements are not those of the file.
    /// @{
    RVCatalogueProduct oldProduct() const { return myOld; }
    RVCatalogueProduct newProduct() const { return myNew; }
    /// @}
    /// The new version; the old one where that is all there is.
    RVCatalogueProduct product() const { return myNew.isNull() ? myOld : myNew; }

    /// Of the "<" of the start tags in their files; the begin of the file where there is no product.
    /// @{
    RVFilePosition oldPosition() const { return myOldPosition; }
    RVFilePosition newPosition() const { return myNewPosition; }
    /// @}

    /// The differences, in the order of the attributes, then page counts, spine, barcodes and options; none where one
    /// of the products is null.
    QList<RVProductChange> changes() const { return myChanges; }

private:
    friend class RVCatalogueComparisonPrivate;

    RVCatalogueProduct myOld;
    RVCatalogueProduct myNew;
    RVFilePosition myOldPosition;
    RVFilePosition myNewPosition;
    QList<RVProductChange> myChanges;
};

Q_DECLARE_TYPEINFO(RVProductComparison, Q_RELOCATABLE_TYPE);

#endif
