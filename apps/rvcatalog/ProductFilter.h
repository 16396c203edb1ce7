#ifndef PRODUCTFILTER_H
#define PRODUCTFILTER_H

#include "ProductCondition.h"
#include "ProductSearch.h"

#include <QList>
#include <QStringList>

/// Chooses products: by their types, where some are named, and by conditions that all have to be met.
class ProductFilter
{
public:
    ProductFilter(const QStringList &types, const QStringList &conditions);

    /// The reason why one of the conditions is none; empty where all are.
    QString problem() const;
    bool isEmpty() const { return myTypes.isEmpty() && myConditions.isEmpty(); } ///< Chooses every product.
    /// Any thread may ask.
    bool chooses(const RVCatalogueProduct &product) const;

    /// A search for each of the types.
    QList<WantedType> wantedTypes() const;

private:
    QList<RVProductType> myTypes;
    QList<ProductCondition> myConditions;
};

#endif
