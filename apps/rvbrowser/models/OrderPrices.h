#ifndef ORDERPRICES_H
#define ORDERPRICES_H

#include "Bill.h"
#include "LoadedCatalogue.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/// The price classes that an order of a product is billed by, each with what it is for, in words.
class OrderPrices
{
    Q_DECLARE_TR_FUNCTIONS(OrderPrices)

public:
    struct Line
    {
        qint64 count;
        RVPriceClass priceClass;
        QStringList purposes;
    };

    /// Of no product.
    OrderPrices() = default;
    OrderPrices(const LoadedCatalogue &catalogue, int product);

    /// The reason why the product cannot be ordered; empty where it can.
    const QString &obstacle() const { return myObstacle; }
    /// One line a price class: that of the product, of its packages, of its options. @p variants are all that are
    /// chosen. Empty where nothing is billed, or nothing can be ordered.
    QList<Line> lines(int pages, const RVArticleVariants &variants) const;

private:
    static QString purpose(const Bill::Item &item);

    RVCatalogueProduct myProduct;
    RVPageCountOrganization myPageCounts;
    QString myObstacle;
};

#endif
