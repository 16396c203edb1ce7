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
 * A named group is built once and returned as a shared copy, to any thread. Composite groups are built on every call.
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVPriceClassSet
 *
 * @ingroup pricing
 */
class RVPRODUCTBASE_EXPORT RVPriceClassSet : public QSet<RVPriceClass>
{
public:
    RVPriceClassSet() = default; ///< The empty set.
    /// Shares the data of @p priceClasses.
    RVPriceClassSet(const QSet<RVPriceClass> &priceClasses);
    RVPriceClassSet(const RVPriceClass &priceClass); ///< The set of this price class, which may be the empty one.
    RVPriceClassSet(std::initializer_list<QString> codes); ///< Duplicates count once.
    RVPriceClassSet(const RVPriceClassSet &) = default;
    RVPriceClassSet(RVPriceClassSet &&) = default;
    RVPriceClassSet &operator=(const RVPriceClassSet &) = default;
    RVPriceClassSet &operator=(RVPriceClassSet &&) = default;
    virtual ~RVPriceClassSet();

    /// @name Frames
    /// @{

    static RVPriceClass framePassepartout(); ///< TEV1
    static RVPriceClass frameGlass(); ///< RUN1
    static RVPriceClass frameLamination(); ///< DOS1
    static RVPriceClassSet frameGlasses(); ///< Glass and lamination.
    /// @}

    /// @name Spot-colour finishes
    /// @{

    static RVPriceClassSet spotColorGloss(); ///< 19 codes that begin with KUR.
    static RVPriceClassSet spotColorGoldSilver(); ///< 30 codes that begin with KUR: gold, silver and rose gold.
    static RVPriceClassSet spotColorSilverInk(); ///< Empty.
    static RVPriceClassSet spotColorAll(); ///< All groups above.
    /// The group of one spot colour; empty for none, for a combination and for an unknown one.
    static RVPriceClassSet spotColorPriceClasses(const RVSpotColor &color);
    /// @}

    /// @name Gifts
    /// @{

    static RVPriceClassSet bookGiftBoxes(); ///< VEL4 to VEL7
    static RVPriceClassSet bookGiftService(); ///< HAZ5 to HAZ8
    static RVPriceClassSet calendarGiftService(); ///< HAZ9
    static RVPriceClassSet calendarGiftBoxes(); ///< HAZ10 and HAZ11
    /// @}

    /// @name Products and their parts
    /// @{

    static RVPriceClassSet maps(); ///< JOT1 and JOT51
    static RVPriceClassSet envelops(); ///< YIB1 to YIB9
    static RVPriceClassSet calendarStrips(); ///< NUS1 to NUS3
    static RVPriceClassSet calendarStandPriceClasses(); ///< ZUD1
    static RVPriceClassSet calendarFrameClasses(); ///< Strips, stand and the wall holder below.
    static RVPriceClassSet posterWoodenStrips(); ///< BIX1 to BIX5
    static RVPriceClassSet wallholderThatActsLikeAFrame(); ///< QO20
    static RVPriceClassSet wallholderPriceClasses(); ///< 18 codes that begin with QO.
    static RVPriceClassSet memorabiliaPocketPriceClass(); ///< GEK1 to GEK8
    static RVPriceClassSet artPrintBoxPriceClasses(); ///< TY64 and TY65
    static RVPriceClassSet videoNames(); ///< MUL1 to MUL9 and MUL51 to MUL55
    /// @}

    /// @name Covers and pages
    /// @{

    static RVPriceClassSet mattCoverPriceClasses(); ///< KUR29 to KUR36
    static RVPriceClassSet linenCoverPriceClasses(); ///< LEZ1 to LEZ6
    static RVPriceClassSet flyleafAndInsideCoverPriceClasses(); ///< SAV1 to SAV13
    static RVPriceClassSet pxwPanoPagesPriceClasses(); ///< WAF3
    static RVPriceClassSet pageIncrements(); ///< RODA6x9 and KEMI62: extra pages.
    /// @}

    /// @name Design
    /// @{

    static RVPriceClassSet pxwInnerPagesDesignPriceClasses(); ///< "premium_inner_pages_design"
    static RVPriceClassSet pxwCoverDesignPriceClasses(); ///< "premium_cover_design"
    static RVPriceClassSet pxwNewDesignPriceClasses(); ///< The two groups above.
    static RVPriceClassSet designPriceClasses(); ///< All nine design add-ons.
    /// @}

    /// True when some price class of @p other is in this set; false for an empty @p other.
    bool containsOneOf(const RVPriceClassSet &other) const;

    /// The codes joined with ",", in no particular order.
    QString toString() const;
};

/// The codes one after another, in no particular order. @relates RVPriceClassSet
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPriceClassSet &priceClasses);

#endif
