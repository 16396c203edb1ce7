#ifndef CATALOGUEPRODUCT_H
#define CATALOGUEPRODUCT_H

#include <RVConfiguredArticleVariantList.h>
#include <RVPageCountOrganization.h>
#include <RVPriceClass.h>
#include <RVProductType.h>
#include <RVSpineConfig.h>

#include <QHash>
#include <QString>

class QDomElement;

/// What a product element of the products XML says.
struct CatalogueProduct
{
    CatalogueProduct() = default;
    explicit CatalogueProduct(const QDomElement &product);

    /// True when a spine of some width is configured.
    bool hasSpine() const;
    /// The price class that the catalogue gives to an option; empty where it gives none.
    RVPriceClass optionPriceClass(const QString &key, const QString &value) const;

    QString name;
    RVProductType type;
    RVPageCountOrganization pageCounts;
    RVSpineConfig spine;
    RVConfiguredArticleVariantList options;
    RVPriceClass priceClass;
    RVPriceClass pagePriceClass; ///< of one package of added pages

private:
    QHash<QString, RVPriceClass> myOptionPriceClasses;
};

#endif
