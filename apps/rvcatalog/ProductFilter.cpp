#include "ProductFilter.h"

#include <algorithm>

ProductFilter::ProductFilter(const QStringList &types, const QStringList &conditions)
{
    for (const QString &type : types)
        myTypes += RVProductType(type);
    for (const QString &condition : conditions)
        myConditions += ProductCondition(condition);
}

QString ProductFilter::problem() const
{
    for (const ProductCondition &condition : myConditions) {
        if (!condition.problem().isEmpty())
            return condition.problem();
    }
    return QString();
}

bool ProductFilter::chooses(const RVCatalogueProduct &product) const
{
    if (!myTypes.isEmpty() && !myTypes.contains(product.type()))
        return false;
    return std::all_of(myConditions.begin(), myConditions.end(),
                       [&product](const ProductCondition &condition) { return condition.isMetBy(product); });
}

QList<WantedType> ProductFilter::wantedTypes() const
{
    QList<WantedType> result;
    for (const RVProductType &type : myTypes)
        result += WantedType(type);
    return result;
}
