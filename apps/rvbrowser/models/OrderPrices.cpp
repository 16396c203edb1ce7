#include "OrderPrices.h"

#include <algorithm>

using namespace Qt::StringLiterals;

OrderPrices::OrderPrices(const LoadedCatalogue &catalogue, int product)
    : myProduct(catalogue.product(product)),
      myPageCounts(myProduct.pageCounts())
{
    if (!myProduct.type().isValid())
        myObstacle = tr("This product cannot be ordered: it has no type.");
    else if (!catalogue.isSold(product))
        myObstacle = tr("This product cannot be ordered: an earlier one has the same type.");
    else if (!myPageCounts.isValid())
        myObstacle = tr("This product cannot be ordered: its page counts are not valid.");
}

QList<OrderPrices::Line> OrderPrices::lines(int pages, const RVArticleVariants &variants) const
{
    if (myProduct.isNull() || !myObstacle.isEmpty())
        return {};
    QList<Line> result;
    const Bill bill(myProduct, myPageCounts.countPackages(pages), variants);
    for (const Bill::Item &item : bill.items()) {
        const auto isSame = [&item](const Line &line) { return line.priceClass == item.priceClass; };
        auto line = std::find_if(result.begin(), result.end(), isSame);
        if (line == result.end())
            line = result.insert(result.cend(), { 0, item.priceClass, {} });
        line->count += item.count;
        line->purposes += purpose(item);
    }
    return result;
}

QString OrderPrices::purpose(const Bill::Item &item)
{
    const RVConfiguredArticleVariant &option = item.option;
    switch (item.subject) {
    case Bill::Product:
        return tr("product");
    case Bill::Packages:
        return tr("pages above the lowest count");
    case Bill::Option:
        return u"%1: %2"_s.arg(option.keyName().isEmpty() ? option.key() : option.keyName(),
                               option.visibleName().isEmpty() ? option.value() : option.visibleName());
    }
    return QString();
}
