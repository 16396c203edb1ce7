#ifndef RVMODELADDONSTATISTIC_H
#define RVMODELADDONSTATISTIC_H

#include "RVArticleVariants.h"
#include "RVContentStatistic.h"
#include "RVPriceClass.h"
#include "RVPriceClassSet.h"
#include "RVProductBaseExport.h"

/// The contents of a project that cost extra, together with the add-ons that its product model offers.
/// @par Example
/// @snippet tst_examples_articles.cpp RVModelAddOnStatistic
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVModelAddOnStatistic
{
public:
    /// Offers these two add-ons and nothing else; an empty code offers none.
    RVModelAddOnStatistic(const RVContentStatistic &contentStatistic, const RVPriceClass &videoAddOn,
                          const RVPriceClass &spotColorAddOn);
    /// Offers the video add-on "MUL1" and no spot colour.
    RVModelAddOnStatistic(const RVContentStatistic &contentStatistic);
    RVModelAddOnStatistic(const RVModelAddOnStatistic &) = default;
    RVModelAddOnStatistic(RVModelAddOnStatistic &&) = default;
    RVModelAddOnStatistic &operator=(const RVModelAddOnStatistic &) = default;
    RVModelAddOnStatistic &operator=(RVModelAddOnStatistic &&) = default;
    virtual ~RVModelAddOnStatistic();

    /// The contents of the project, see RVContentStatistic.
    /// @{
    RVContentStatistic contentStatistic() const { return myContentStatistic; }
    int countGeoMapAreas() const noexcept { return myContentStatistic.countGeoMapAreas(); }
    int countVideoAreas() const noexcept { return myContentStatistic.countVideoAreas(); }
    QMap<RVPriceClass, int> additionalContent() const { return myContentStatistic.boughtAdditionalContent(); }
    int count(const RVPriceClass &priceClass) const { return myContentStatistic.count(priceClass); }
    /// @}

    RVPriceClass videoAddOn() const { return myVideoAddOn; } ///< Empty if there is none.
    RVPriceClass spotColorAddOn() const { return mySpotColorAddOn; } ///< Empty if there is none.
    RVPriceClass flyLeafAddOn() const { return myFlyLeafAddOn; } ///< Empty until it is set.
    /// The options that were chosen with the fly-leaf.
    RVArticleVariants flyLeafVariants() const { return myFlyLeafVariants; }
    RVPriceClassSet designStyleAddOns() const { return myDesignStyleAddOns; } ///< Empty until they are set.
    RVPriceClass panoPagesAddOn() const { return myPanoPagesAddOn; } ///< Empty until it is set.

    /// Changes the contents of the project, see RVContentStatistic.
    /// @{
    void addAddOn(const RVPriceClass &priceClass, int quantity) { myContentStatistic.addAddOn(priceClass, quantity); }
    void removeAddOn(const RVPriceClass &priceClass) { myContentStatistic.removeAddOn(priceClass); }
    /// @}

    /// Changes the add-ons of the product model.
    /// @{
    void setVideoAddOn(const RVPriceClass &priceClass);
    void setSpotColorAddOn(const RVPriceClass &priceClass);
    void setFlyLeafAddOn(const RVPriceClass &priceClass, const RVArticleVariants &variants);
    void setDesignStyleAddOns(const RVPriceClassSet &priceClasses);
    void setPanoPagesAddOn(const RVPriceClass &priceClass);
    /// @}

    /// Compares the contents of the project and the add-ons of the model.
    /// @{
    RVPRODUCTBASE_EXPORT friend bool operator==(const RVModelAddOnStatistic &a, const RVModelAddOnStatistic &b);
    friend bool operator!=(const RVModelAddOnStatistic &a, const RVModelAddOnStatistic &b) { return !(a == b); }
    /// @}

private:
    RVContentStatistic myContentStatistic;
    RVPriceClass myVideoAddOn;
    RVPriceClass mySpotColorAddOn;
    RVPriceClass myFlyLeafAddOn;
    RVArticleVariants myFlyLeafVariants;
    RVPriceClassSet myDesignStyleAddOns;
    RVPriceClass myPanoPagesAddOn;
};

Q_DECLARE_TYPEINFO(RVModelAddOnStatistic, Q_RELOCATABLE_TYPE);

#endif
