#ifndef CATALOGUEPRODUCT_H
#define CATALOGUEPRODUCT_H

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

#include <QHash>
#include <QString>

class CatalogueElement;
class QDomElement;

/// What a product element of the products XML says.
struct CatalogueProduct
{
    CatalogueProduct() = default;
    explicit CatalogueProduct(const QDomElement &product);
    /// All but the options, which CatalogueOptions reads.
    static CatalogueProduct withoutOptions(const CatalogueElement &product);

    /// True when a spine of some width is configured.
    bool hasSpine() const;
    /// The price class that the catalogue gives to an option; empty where it gives none.
    RVPriceClass optionPriceClass(const QString &key, const QString &value) const;

    QString name;
    RVProductType type;
    RVArticleId articleId;
    // What a product does not say of itself is null.
    RVArticleClass articleClass;
    RVCoverType coverType;
    RVPageBinding pageBinding;
    RVPaperType paperType;
    RVFotoPaperType fotoPaperType; ///< of photo prints; their default where none is given
    RVOrientation orientation;
    RVSpaceMagnitude spaceMagnitude;
    RVShippingGroupId shippingGroup; ///< that of the article class where none is given
    RVBarcodeDefinitionList barcodes;
    RVPageCountOrganization pageCounts;
    RVSpineConfig spine;
    RVConfiguredArticleVariantList options;
    RVPriceClass priceClass;
    RVPriceClass pagePriceClass; ///< of one package of added pages

private:
    template<typename Element>
    CatalogueProduct(const Element &texts, const QDomElement &numbers);

    QHash<QString, RVPriceClass> myOptionPriceClasses;
};

#endif
