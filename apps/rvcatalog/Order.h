#ifndef ORDER_H
#define ORDER_H

#include "Console.h"
#include "ProductOption.h"
#include "ProductValues.h"

#include <RVCatalogueProject.h>

#include <QList>
#include <QMap>

/// A project, and the product and options of the catalogue for it.
class Order
{
public:
    Order(const RVCatalogueProject &project, const RVCatalogueProduct &product);

    /// The reasons why this cannot be ordered, each with its place in the project file.
    QList<Problem> problems() const;

    /// The order with the additions of the catalogue, for an order without problems.
    /// @{
    const ProductValues &values() const { return myValues; }
    int pages() const; ///< The page count; the lowest one if the project has none.
    int packages() const; ///< The packages above the lowest count.
    RVArticleVariants variants() const; ///< The options, including the defaults.
    QList<ProductOption> options() const; ///< The chosen ones and the defaults, in the order of the catalogue.
    QStringList chosenKeys() const; ///< The keys of the project, sorted; the others have an added default.
    QMap<RVPriceClass, qint64> priceClasses() const; ///< The billed price classes and their counts.
    /// @}

private:
    RVArticleVariants chosen() const { return RVArticleVariants::createFromKTX(myProject.variants()); }
    QString wrongOption(const QString &key, const QString &value) const;
    QStringList optionProblems() const;
    QString pageCountProblem() const;
    RVFilePosition place(QLatin1StringView attribute) const;

    RVCatalogueProject myProject;
    ProductValues myValues;
    RVConfiguredArticleVariantList myOptions; // all offered options
};

#endif
