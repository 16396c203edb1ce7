#ifndef PRODUCTFILTER_H
#define PRODUCTFILTER_H

#include "ProductCondition.h"
#include "ProductSearch.h"

#include <QList>
#include <QStringList>

/// Selects products by types, if some are given, and by conditions that all have to be met.
class ProductFilter
{
public:
    ProductFilter(const QStringList &types, const QStringList &conditions);

    /// The reason why one of the conditions is invalid; empty if all are valid.
    QString problem() const;
    bool isEmpty() const { return myTypes.isEmpty() && myConditions.isEmpty(); } ///< True if it selects every product.
    /// Any thread may ask.
    bool chooses(const RVCatalogueProduct &product) const;

    /// A search for each of the types.
    QList<WantedType> wantedTypes() const;

private:
    QList<RVProductType> myTypes;
    QList<ProductCondition> myConditions;
};

#endif
