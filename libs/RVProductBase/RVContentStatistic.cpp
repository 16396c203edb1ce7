#include "RVContentStatistic.h"

#include "RVPriceClassSet.h"

#include <algorithm>

RVContentStatistic::RVContentStatistic(int countGeoMapAreas, int countVideoAreas,
                                       const QMap<RVPriceClass, int> &boughtAdditionalContent)
    : myCountGeoMapAreas(countGeoMapAreas),
      myCountVideoAreas(countVideoAreas),
      myBoughtAdditionalContent(boughtAdditionalContent)
{ }

RVContentStatistic::~RVContentStatistic() = default;

int RVContentStatistic::count(const RVPriceClass &priceClass) const
{
    return myBoughtAdditionalContent.value(priceClass, 0);
}

bool RVContentStatistic::isPriceClassAddOnApplied(const RVPriceClassSet &priceClasses) const
{
    return std::any_of(myBoughtAdditionalContent.keyBegin(), myBoughtAdditionalContent.keyEnd(),
                       [&](const RVPriceClass &bought) { return priceClasses.contains(bought); });
}

void RVContentStatistic::addAddOn(const RVPriceClass &priceClass, int quantity)
{
    myBoughtAdditionalContent.insert(priceClass, quantity);
}

void RVContentStatistic::removeAddOn(const RVPriceClass &priceClass)
{
    myBoughtAdditionalContent.remove(priceClass);
}

void RVContentStatistic::replaceAddOn(const RVPriceClass &from, const RVPriceClass &to)
{
    const int quantity = count(from);
    if (quantity > 0)
        addAddOn(to, quantity);
    removeAddOn(from);
}

void RVContentStatistic::adaptFromOrToVario(bool fromVario, bool toVario)
{
    if (fromVario == toVario)
        return;
    for (int &quantity : myBoughtAdditionalContent)
        quantity = toVario ? 10 : 1;
}
