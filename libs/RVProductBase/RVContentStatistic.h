#ifndef RVCONTENTSTATISTIC_H
#define RVCONTENTSTATISTIC_H

#include "RVPriceClass.h"
#include "RVProductBaseExport.h"

#include <QMap>

class RVPriceClassSet;

/// What a project contains that costs extra: its map and video areas, and the add-ons that were bought, with their
/// quantities. The editor fills it when a project is priced; it comes from no file.
/// @par Example
/// @snippet tst_examples_articles.cpp RVContentStatistic
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVContentStatistic
{
public:
    /// The numbers of areas, and the quantity of each add-on.
    RVContentStatistic(int countGeoMapAreas, int countVideoAreas,
                       const QMap<RVPriceClass, int> &boughtAdditionalContent);
    RVContentStatistic(const RVContentStatistic &) = default;
    RVContentStatistic(RVContentStatistic &&) = default;
    RVContentStatistic &operator=(const RVContentStatistic &) = default;
    RVContentStatistic &operator=(RVContentStatistic &&) = default;
    virtual ~RVContentStatistic();

    int countGeoMapAreas() const noexcept { return myCountGeoMapAreas; } ///< The maps that the project shows.
    int countVideoAreas() const noexcept { return myCountVideoAreas; } ///< The videos that the project links.
    /// The quantities of all add-ons, by billing code.
    QMap<RVPriceClass, int> boughtAdditionalContent() const { return myBoughtAdditionalContent; }
    /// The quantity of an add-on; 0 where it was not bought.
    int count(const RVPriceClass &priceClass) const;
    /// True when an add-on of @p priceClasses was bought, even if its quantity is 0.
    bool isPriceClassAddOnApplied(const RVPriceClassSet &priceClasses) const;

    /// Sets the quantity; an earlier one is replaced, not added to.
    void addAddOn(const RVPriceClass &priceClass, int quantity);
    void removeAddOn(const RVPriceClass &priceClass); ///< Whatever its quantity.
    /// Moves a quantity above 0 from one add-on to another, and removes the first in any case: an add-on that replaces
    /// itself is gone.
    void replaceAddOn(const RVPriceClass &from, const RVPriceClass &to);
    /// Sets every quantity to 10 for a project that becomes a vario one, to 1 for one that no longer is.
    void adaptFromOrToVario(bool fromVario, bool toVario);

    /// By areas and add-ons.
    /// @{
    friend bool operator==(const RVContentStatistic &a, const RVContentStatistic &b)
    {
        return a.myCountGeoMapAreas == b.myCountGeoMapAreas && a.myCountVideoAreas == b.myCountVideoAreas
                && a.myBoughtAdditionalContent == b.myBoughtAdditionalContent;
    }
    friend bool operator!=(const RVContentStatistic &a, const RVContentStatistic &b) { return !(a == b); }
    /// @}

private:
    int myCountGeoMapAreas;
    int myCountVideoAreas;
    QMap<RVPriceClass, int> myBoughtAdditionalContent;
};

Q_DECLARE_TYPEINFO(RVContentStatistic, Q_RELOCATABLE_TYPE);

#endif
