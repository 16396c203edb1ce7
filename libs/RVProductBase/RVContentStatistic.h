#ifndef RVCONTENTSTATISTIC_H
#define RVCONTENTSTATISTIC_H

#include "RVPriceClass.h"
#include "RVProductBaseExport.h"

#include <QMap>

class RVPriceClassSet;

/// The contents of a project that cost extra: its map and video areas, and the add-ons that were bought, with their
/// quantities. The editor fills it when it prices a project; it is not read from a file.
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
    /// The quantity of an add-on; 0 if it was not bought.
    int count(const RVPriceClass &priceClass) const;
    /// True when an add-on of @p priceClasses was bought, even if its quantity is 0.
    bool isPriceClassAddOnApplied(const RVPriceClassSet &priceClasses) const;

    /// Sets the quantity and replaces an earlier one.
    void addAddOn(const RVPriceClass &priceClass, int quantity);
    void removeAddOn(const RVPriceClass &priceClass); ///< Removes it with its whole quantity.
    /// Moves a quantity above 0 from one add-on to another, and removes the first in any case. So an add-on that
    /// replaces itself is removed.
    void replaceAddOn(const RVPriceClass &from, const RVPriceClass &to);
    /// Sets every quantity to 10 for a project that becomes a vario project, and to 1 for one that stops being one.
    void adaptFromOrToVario(bool fromVario, bool toVario);

    /// Compares areas and add-ons.
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
