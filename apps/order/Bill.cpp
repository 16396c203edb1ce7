#include "Bill.h"

Bill::Bill(const RVCatalogueProduct &product, int packages, const RVArticleVariants &variants)
{
    const RVConfiguredArticleVariantList offered = product.options();
    add(Product, product.priceClass(), 1);
    add(Packages, product.pagePriceClass(), packages);
    QStringList keys = variants.keys();
    keys.sort();
    for (const QString &key : keys) {
        const QString value = variants.value(key);
        const RVConfiguredArticleVariant option = offered.filter(key).variant({ key, value });
        if (isCharged(option))
            add(Option, product.optionPriceClass(key, value), 1, option);
    }
}

void Bill::add(Subject subject, const RVPriceClass &priceClass, int count, const RVConfiguredArticleVariant &option)
{
    if (priceClass.isValid() && count > 0)
        myItems += { subject, priceClass, count, option };
}

QMap<RVPriceClass, qint64> Bill::counts() const
{
    QMap<RVPriceClass, qint64> result;
    for (const Item &item : myItems)
        result[item.priceClass] += item.count;
    return result;
}

bool Bill::isCharged(const RVConfiguredArticleVariant &option)
{
    return !option.isNotAccountable() && !option.toArticleVariants().containsNotAccountableVariant();
}
