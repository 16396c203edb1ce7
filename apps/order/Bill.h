#ifndef BILL_H
#define BILL_H

#include <RVCatalogueProduct.h>

#include <QList>
#include <QMap>

/// The price classes that an order of one product is billed by: that of the product, that of its packages above the
/// lowest page count, and those of its options. What has no price class is not billed.
class Bill
{
public:
    enum Subject { Product, Packages, Option };

    struct Item
    {
        Subject subject;
        RVPriceClass priceClass; ///< always valid, though it may be free
        int count; ///< 1 but for packages
        RVConfiguredArticleVariant option; ///< not valid where the subject is no option
    };

    /// @p packages are those above the lowest count. @p variants are all options that are ordered, with the defaults.
    Bill(const RVCatalogueProduct &product, int packages, const RVArticleVariants &variants);

    /// The product, its packages, then its options by their keys.
    const QList<Item> &items() const { return myItems; }
    /// All packages and options of a product may share one price class, so the sum may be larger than an int.
    QMap<RVPriceClass, qint64> counts() const;

    /// False for an option that is free of charge, whatever its price class.
    static bool isCharged(const RVConfiguredArticleVariant &option);

private:
    void add(Subject subject, const RVPriceClass &priceClass, int count, const RVConfiguredArticleVariant &option = {});

    QList<Item> myItems;
};

#endif
