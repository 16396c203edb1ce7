#include "RVModelAddOnStatistic.h"

RVModelAddOnStatistic::RVModelAddOnStatistic(const RVContentStatistic &contentStatistic, const RVPriceClass &videoAddOn,
                                             const RVPriceClass &spotColorAddOn)
    : myContentStatistic(contentStatistic),
      myVideoAddOn(videoAddOn),
      mySpotColorAddOn(spotColorAddOn)
{ }

RVModelAddOnStatistic::RVModelAddOnStatistic(const RVContentStatistic &contentStatistic)
    : RVModelAddOnStatistic(contentStatistic, RVPriceClass::create(QStringLiteral("MUL1")), RVPriceClass())
{ }

RVModelAddOnStatistic::~RVModelAddOnStatistic() = default;

void RVModelAddOnStatistic::setVideoAddOn(const RVPriceClass &priceClass)
{
    myVideoAddOn = priceClass;
}

void RVModelAddOnStatistic::setSpotColorAddOn(const RVPriceClass &priceClass)
{
    mySpotColorAddOn = priceClass;
}

void RVModelAddOnStatistic::setFlyLeafAddOn(const RVPriceClass &priceClass, const RVArticleVariants &variants)
{
    myFlyLeafAddOn = priceClass;
    myFlyLeafVariants = variants;
}

void RVModelAddOnStatistic::setDesignStyleAddOns(const RVPriceClassSet &priceClasses)
{
    myDesignStyleAddOns = priceClasses;
}

void RVModelAddOnStatistic::setPanoPagesAddOn(const RVPriceClass &priceClass)
{
    myPanoPagesAddOn = priceClass;
}

bool operator==(const RVModelAddOnStatistic &a, const RVModelAddOnStatistic &b)
{
    return a.myContentStatistic == b.myContentStatistic && a.myVideoAddOn == b.myVideoAddOn
            && a.mySpotColorAddOn == b.mySpotColorAddOn && a.myFlyLeafAddOn == b.myFlyLeafAddOn
            && a.myFlyLeafVariants == b.myFlyLeafVariants && a.myDesignStyleAddOns == b.myDesignStyleAddOns
            && a.myPanoPagesAddOn == b.myPanoPagesAddOn;
}
