#ifndef BILL_H
#define BILL_H

#include <RVCatalogueProduct.h>

#include <QList>
#include <QMap>

/// The price classes on the bill of an order of one product: that of the product, that of its packages above the lowest
/// page count, and those of its options. A part without a price class is not billed.
class Bill
{
public:
    enum Subject { Product, Packages, Option };

    struct Item
    {
        Subject subject;
        RVPriceClass priceClass; ///< always valid, but may be free of charge
        int count; ///< 1, except for packages
        RVConfiguredArticleVariant option; ///< not valid where the subject is no option
    };

    /// @p packages are those above the lowest count. @p variants are all ordered options, including the defaults.
    Bill(const RVCatalogueProduct &product, int packages, const RVArticleVariants &variants);

    /// The product, its packages, then its options by their keys.
    const QList<Item> &items() const { return myItems; }
    /// All packages and options of a product may share one price class, so the sum may be larger than an int.
    QMap<RVPriceClass, qint64> counts() const;

    /// False for an option that is free of charge, with any price class.
    static bool isCharged(const RVConfiguredArticleVariant &option);

private:
    void add(Subject subject, const RVPriceClass &priceClass, int count, const RVConfiguredArticleVariant &option = {});

    QList<Item> myItems;
};

#endif
