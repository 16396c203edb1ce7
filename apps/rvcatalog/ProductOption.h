#ifndef PRODUCTOPTION_H
#define PRODUCTOPTION_H

#include <RVCatalogueProduct.h>

#include <QList>

/// An option of a product, with what the catalogue says of it besides.
struct ProductOption
{
    RVConfiguredArticleVariant option;
    QString formName; ///< "name" of the form
    RVPriceClass priceClass;
    bool isDefault = false; ///< chosen of its key where the customer chooses nothing

    /// "#rrggbb", or "#aarrggbb" where it can be seen through; empty without a colour.
    QString colorText() const;

    /// The valid options of a product, in the order of the file.
    static QList<ProductOption> of(const RVCatalogueProduct &product);
};

#endif
