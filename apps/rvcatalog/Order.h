#ifndef ORDER_H
#define ORDER_H

#include "Console.h"
#include "ProductOption.h"
#include "ProductValues.h"

#include <RVCatalogueProject.h>

#include <QList>
#include <QMap>

/// A project, and what the catalogue offers for it.
class Order
{
public:
    Order(const RVCatalogueProject &project, const RVCatalogueProduct &product);

    /// Reasons why this cannot be ordered, each with its place in the project file.
    QList<Problem> problems() const;

    /// The order, with what the catalogue adds; for an order without problems.
    /// @{
    const ProductValues &values() const { return myValues; }
    int pages() const; ///< The lowest count where the project says nothing.
    int packages() const; ///< Above the lowest count.
    RVArticleVariants variants() const; ///< With the defaults.
    QList<ProductOption> options() const; ///< The chosen ones and the defaults, in the order of the catalogue.
    QStringList chosenKeys() const; ///< Sorted; the others have a default that is added.
    QMap<RVPriceClass, qint64> priceClasses() const; ///< Those that are billed, and how often.
    /// @}

private:
    RVArticleVariants chosen() const { return RVArticleVariants::createFromKTX(myProject.variants()); }
    QString wrongOption(const QString &key, const QString &value) const;
    QStringList optionProblems() const;
    QString pageCountProblem() const;
    RVFilePosition place(QLatin1StringView attribute) const;

    RVCatalogueProject myProject;
    ProductValues myValues;
    RVConfiguredArticleVariantList myOptions; // all that are offered
};

#endif
