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
 * Values are compared, not texts: an alias and its keyword, 8 and 8.0, 8 mm and 0.8 cm are equal, and so are a default
 * value and a missing one. Parts that the ordering application does not read make no difference: other attributes and
 * elements, comments, the order of attributes, options and barcodes, and the place of the product.
 *
 * An option without key or value, or a barcode without extent, makes no difference either. The widths of the spine are
 * compared at the first 10,000 page counts that both versions have. The default comparison has two null products.
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
    /// A null product stands for a missing one.
    RVProductComparison(const RVCatalogueProduct &oldProduct, const RVCatalogueProduct &newProduct);

    bool isNull() const { return myOld.isNull() && myNew.isNull(); } ///< True if there is no product.
    RVChangeKind kind() const; ///< Added or Removed if the other product is null.
    /// True if both are present with different types: the same article with a new type.
    bool isRenamed() const;

    /// The two versions. Those that RVCatalogueComparison returns have families, but their number and the places of
    /// their elements are not those of the file.
    /// @{
    RVCatalogueProduct oldProduct() const { return myOld; }
    RVCatalogueProduct newProduct() const { return myNew; }
    /// @}
    /// The new version, or the old one of a removed product.
    RVCatalogueProduct product() const { return myNew.isNull() ? myOld : myNew; }

    /// The places of the "<" of the start tags in their files; the begin of the file if there is no product.
    /// @{
    RVFilePosition oldPosition() const { return myOldPosition; }
    RVFilePosition newPosition() const { return myNewPosition; }
    /// @}

    /// The differences, in the order of the attributes, then page counts, spine, barcodes and options; none if one of
    /// the products is null.
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
