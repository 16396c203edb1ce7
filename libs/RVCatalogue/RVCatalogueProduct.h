#ifndef RVCATALOGUEPRODUCT_H
#define RVCATALOGUEPRODUCT_H

#include "RVCatalogueElement.h"
#include "RVCatalogueExport.h"
#include "RVCatalogueFinding.h"

#include <RVArticleClass.h>
#include <RVArticleId.h>
#include <RVBarcodeDefinitionList.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVCoverType.h>
#include <RVFotoPaperType.h>
#include <RVOrientation.h>
#include <RVPageBinding.h>
#include <RVPageCountOrganization.h>
#include <RVPaperType.h>
#include <RVPriceClass.h>
#include <RVProductType.h>
#include <RVShippingGroupId.h>
#include <RVSpaceMagnitude.h>
#include <RVSpineConfig.h>

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * A product of a catalogue: the `product` element of the products XML with everything in it.
 *
 * RVCatalogueReader returns products. They never change, so copies share their data, also between threads. A product
 * keeps the text of its element, and every function below reads its value from that text. This takes some ten
 * nanoseconds for an id and some microseconds for all options. Keep values that you need often.
 *
 * The values are those that the `createFromProductsXML` readers of the library give for the same element: a value that
 * is missing or cannot be read has its default. An attribute that a product does not have is null, though an empty text
 * may stand for a value. The default product is null, and all its values are defaults.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueProduct
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueProduct
{
public:
    RVCatalogueProduct();
    RVCatalogueProduct(const RVCatalogueProduct &other);
    RVCatalogueProduct(RVCatalogueProduct &&other) noexcept;
    RVCatalogueProduct &operator=(const RVCatalogueProduct &other);
    RVCatalogueProduct &operator=(RVCatalogueProduct &&other) noexcept;
    ~RVCatalogueProduct();

    bool isNull() const noexcept { return !d; } ///< True for the default one.

    RVProductType type() const; ///< "type"; a photo book code is reduced to its family.
    QString name() const; ///< "name", for people.
    RVArticleId articleId() const; ///< "article_id"
    RVArticleClass articleClass() const; ///< "article_class"
    RVCoverType coverType() const; ///< "cover_type"
    RVPageBinding pageBinding() const; ///< "page_binding"
    RVPaperType paperType() const; ///< "paper_type"
    /// "foto_paper_type"; if it is missing the default of the article class, which only photo prints have.
    RVFotoPaperType fotoPaperType() const;
    RVOrientation orientation() const; ///< "orientation"
    RVSpaceMagnitude spaceMagnitude() const; ///< "space_magnitude"
    RVShippingGroupId shippingGroup() const; ///< "shipping_group"; that of the article class if it is missing.

    /// "pages", "max_pages", "page_step" and "pieces"; those of a box of photos if "photo_box" is true.
    RVPageCountOrganization pageCounts() const;
    bool isPhotoBox() const; ///< "photo_box"; false if it is missing.
    RVSpineConfig spine() const; ///< "spine" in the first "composition".
    bool hasSpine() const; ///< True when the spine has some width at the highest page count.
    RVBarcodeDefinitionList barcodes() const; ///< The valid ones of the first "barcodes".

    /// The valid options of the first "forms", in the order of the file, with their names, editor names, preview images
    /// and colours.
    RVConfiguredArticleVariantList options() const;
    RVPriceClass priceClass() const; ///< "price_class": the billing code of the product.
    RVPriceClass pagePriceClass() const; ///< "page_price_class": the billing code of a package above the lowest count.
    /// The billing code of the first option with that key and value; empty if it is missing or not billed.
    RVPriceClass optionPriceClass(const QString &key, const QString &value) const;

    /// The "name" of each element around the product that has one, from the outermost inwards.
    QStringList families() const;
    qint64 number() const; ///< The number in the file, from 0; -1 for a null product.
    RVFileRange range() const; ///< The start tag.
    RVCatalogueElement element() const; ///< The product as it stands in the file.
    /// Findings about the product, in the order of the file; none if the reader was given no check.
    QList<RVCatalogueFinding> findings() const;

    /// The elements and attributes of the product in UTF-8, without comments and texts between tags, for storing and
    /// reading again with an RVCatalogueReader; empty for a null product. Without comments, no finding of the new
    /// product is silenced.
    QByteArray toXml() const;

private:
    friend class RVCatalogueParser;
    friend class RVCatalogueReaderPrivate;
    friend class RVProductFingerprint;
    friend class RVSilencer;

    explicit RVCatalogueProduct(RVCatalogueProductData *data);

    QExplicitlySharedDataPointer<RVCatalogueProductData> d;
};

Q_DECLARE_TYPEINFO(RVCatalogueProduct, Q_RELOCATABLE_TYPE);

#endif
