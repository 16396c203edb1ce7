#ifndef PRODUCTOPTION_H
#define PRODUCTOPTION_H

#include <RVCatalogueProduct.h>

#include <QList>

/// An option of a product, with its other data in the catalogue.
struct ProductOption
{
    RVConfiguredArticleVariant option;
    QString formName; ///< "name" of the form
    RVPriceClass priceClass;
    bool isDefault = false; ///< the choice for its key if the customer chooses nothing

    /// The colour as "#rrggbb", or "#aarrggbb" if it is not opaque; empty without a colour.
    QString colorText() const;

    /// The valid options of a product, in the order of the file.
    static QList<ProductOption> of(const RVCatalogueProduct &product);
};

#endif
