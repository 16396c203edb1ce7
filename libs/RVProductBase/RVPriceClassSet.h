#ifndef RVPRICECLASSSET_H
#define RVPRICECLASSSET_H

#include "RVPriceClass.h"
#include "RVProductBaseExport.h"

#include <QSet>

#include <initializer_list>

class QDebug;
class RVSpotColor;

/**
 * A set of price classes, and the groups of them that the catalogue knows by name.
 *
 * A named group is built once and handed out as a shared copy; any thread may ask. The composite ones are put together
 * on every call.
 */
class RVPRODUCTBASE_EXPORT RVPriceClassSet : public QSet<RVPriceClass>
{
public:
    RVPriceClassSet() = default;
    RVPriceClassSet(const QSet<RVPriceClass> &priceClasses);
    RVPriceClassSet(const RVPriceClass &priceClass);
    RVPriceClassSet(std::initializer_list<QString> codes);
    RVPriceClassSet(const RVPriceClassSet &) = default;
    RVPriceClassSet(RVPriceClassSet &&) = default;
    RVPriceClassSet &operator=(const RVPriceClassSet &) = default;
    RVPriceClassSet &operator=(RVPriceClassSet &&) = default;
    virtual ~RVPriceClassSet();

    // Frames
    static RVPriceClass framePassepartout();
    static RVPriceClass frameGlass();
    static RVPriceClass frameLamination();
    static RVPriceClassSet frameGlasses();

    // Spot-colour finishes
    static RVPriceClassSet spotColorGloss();
    static RVPriceClassSet spotColorGoldSilver();
    /// Silver ink is not billed, so the group is empty.
    static RVPriceClassSet spotColorSilverInk();
    static RVPriceClassSet spotColorAll();
    /// The group of one spot colour; empty for none, for a combination and for an unknown one.
    static RVPriceClassSet spotColorPriceClasses(const RVSpotColor &color);

    // Gifts
    static RVPriceClassSet bookGiftBoxes();
    static RVPriceClassSet bookGiftService();
    static RVPriceClassSet calendarGiftService();
    static RVPriceClassSet calendarGiftBoxes();

    // Products and their parts
    static RVPriceClassSet maps();
    static RVPriceClassSet envelops();
    static RVPriceClassSet calendarStrips();
    static RVPriceClassSet calendarStandPriceClasses();
    static RVPriceClassSet calendarFrameClasses();
    static RVPriceClassSet posterWoodenStrips();
    static RVPriceClassSet wallholderThatActsLikeAFrame();
    static RVPriceClassSet wallholderPriceClasses();
    static RVPriceClassSet memorabiliaPocketPriceClass();
    static RVPriceClassSet artPrintBoxPriceClasses();
    static RVPriceClassSet videoNames();

    // Covers and pages
    static RVPriceClassSet mattCoverPriceClasses();
    static RVPriceClassSet linenCoverPriceClasses();
    static RVPriceClassSet flyleafAndInsideCoverPriceClasses();
    static RVPriceClassSet pxwPanoPagesPriceClasses();
    static RVPriceClassSet pageIncrements();

    // Design
    static RVPriceClassSet pxwInnerPagesDesignPriceClasses();
    static RVPriceClassSet pxwCoverDesignPriceClasses();
    static RVPriceClassSet pxwNewDesignPriceClasses();
    static RVPriceClassSet designPriceClasses();

    /// True when some price class of @p other is in this set; false for an empty @p other.
    bool containsOneOf(const RVPriceClassSet &other) const;

    /// The codes joined with ",", in no particular order.
    QString toString() const;
};

/// The codes one after another, in no particular order.
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPriceClassSet &priceClasses);

#endif
