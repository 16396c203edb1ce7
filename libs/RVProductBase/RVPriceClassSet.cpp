#include "RVPriceClassSet.h"

#include "RVKomma_p.h"
#include "RVSpotColor.h"

#include <QDebug>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The numbers first, first + step, … up to last.
struct Numbers
{
    int first;
    int last;
    int step = 1;
};

constexpr Numbers one(int number)
{
    return { number, number };
}

/// Makes a group that is never destroyed: destructors of static objects may ask for it.
const RVPriceClassSet &family(QLatin1StringView letters, std::initializer_list<Numbers> ranges)
{
    auto &result = *new RVPriceClassSet;
    for (const Numbers &range : ranges) {
        for (int number = range.first; number <= range.last; number += range.step)
            result.insert(RVPriceClass::create(letters + QString::number(number)));
    }
    return result;
}

}

RVPriceClassSet::RVPriceClassSet(const QSet<RVPriceClass> &priceClasses) : QSet(priceClasses) { }

RVPriceClassSet::RVPriceClassSet(const RVPriceClass &priceClass)
{
    insert(priceClass);
}

RVPriceClassSet::RVPriceClassSet(std::initializer_list<QString> codes)
{
    for (const QString &code : codes)
        insert(RVPriceClass::create(code));
}

RVPriceClassSet::~RVPriceClassSet() = default;

RVPriceClass RVPriceClassSet::framePassepartout()
{
    return RVPriceClass::create(u"TEV1"_s);
}

RVPriceClass RVPriceClassSet::frameGlass()
{
    return RVPriceClass::create(u"RUN1"_s);
}

RVPriceClass RVPriceClassSet::frameLamination()
{
    return RVPriceClass::create(u"DOS1"_s);
}

RVPriceClassSet RVPriceClassSet::spotColorGloss()
{
    static const RVPriceClassSet &set = family("KUR"_L1, { { 2, 24, 2 }, { 38, 50, 2 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::spotColorGoldSilver()
{
    static const RVPriceClassSet &set = family(
            "KUR"_L1, { { 1, 25, 2 }, one(26), { 37, 49, 2 }, { 501, 505 }, { 507, 509 }, one(551) });
    return set;
}

RVPriceClassSet RVPriceClassSet::spotColorSilverInk()
{
    static const auto &set = *new RVPriceClassSet;
    return set;
}

RVPriceClassSet RVPriceClassSet::bookGiftBoxes()
{
    static const RVPriceClassSet &set = family("VEL"_L1, { { 4, 7 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::bookGiftService()
{
    static const RVPriceClassSet &set = family("HAZ"_L1, { { 5, 8 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::calendarGiftService()
{
    static const RVPriceClassSet &set = family("HAZ"_L1, { one(9) });
    return set;
}

RVPriceClassSet RVPriceClassSet::calendarGiftBoxes()
{
    static const RVPriceClassSet &set = family("HAZ"_L1, { { 10, 11 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::maps()
{
    static const RVPriceClassSet &set = family("JOT"_L1, { one(1), one(51) });
    return set;
}

RVPriceClassSet RVPriceClassSet::envelops()
{
    static const RVPriceClassSet &set = family("YIB"_L1, { { 1, 9 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::calendarStrips()
{
    static const RVPriceClassSet &set = family("NUS"_L1, { { 1, 3 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::posterWoodenStrips()
{
    static const RVPriceClassSet &set = family("BIX"_L1, { { 1, 5 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::wallholderThatActsLikeAFrame()
{
    static const RVPriceClassSet &set = family("QO"_L1, { one(20) });
    return set;
}

RVPriceClassSet RVPriceClassSet::wallholderPriceClasses()
{
    static const RVPriceClassSet &set = family("QO"_L1, { one(2), { 4, 12 }, { 16, 21 }, one(202), one(212) });
    return set;
}

RVPriceClassSet RVPriceClassSet::mattCoverPriceClasses()
{
    static const RVPriceClassSet &set = family("KUR"_L1, { { 29, 36 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::linenCoverPriceClasses()
{
    static const RVPriceClassSet &set = family("LEZ"_L1, { { 1, 6 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::flyleafAndInsideCoverPriceClasses()
{
    static const RVPriceClassSet &set = family("SAV"_L1, { { 1, 13 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::calendarStandPriceClasses()
{
    static const RVPriceClassSet &set = family("ZUD"_L1, { one(1) });
    return set;
}

RVPriceClassSet RVPriceClassSet::memorabiliaPocketPriceClass()
{
    static const RVPriceClassSet &set = family("GEK"_L1, { { 1, 8 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::artPrintBoxPriceClasses()
{
    static const RVPriceClassSet &set = family("TY"_L1, { { 64, 65 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::pxwPanoPagesPriceClasses()
{
    static const RVPriceClassSet &set = family("WAF"_L1, { one(3) });
    return set;
}

RVPriceClassSet RVPriceClassSet::pxwInnerPagesDesignPriceClasses()
{
    static const auto &set = *new RVPriceClassSet { u"premium_inner_pages_design"_s };
    return set;
}

RVPriceClassSet RVPriceClassSet::pxwCoverDesignPriceClasses()
{
    static const auto &set = *new RVPriceClassSet { u"premium_cover_design"_s };
    return set;
}

RVPriceClassSet RVPriceClassSet::videoNames()
{
    static const RVPriceClassSet &set = family("MUL"_L1, { { 1, 9 }, { 51, 55 } });
    return set;
}

RVPriceClassSet RVPriceClassSet::pageIncrements()
{
    static const auto &set = *new RVPriceClassSet { u"RODA6x9"_s, u"KEMI62"_s };
    return set;
}

// The one group that is not read-only: every call adds the premium designs to it, hence the lock.
RVPriceClassSet RVPriceClassSet::designPriceClasses()
{
    static QBasicMutex mutex;
    static auto &set = *new RVPriceClassSet {
        u"61"_s, u"62"_s, u"63"_s, u"64"_s, u"65"_s, u"66"_s, u"premium_design"_s
    };
    const QMutexLocker locker(&mutex);
    set.unite(pxwInnerPagesDesignPriceClasses());
    set.unite(pxwCoverDesignPriceClasses());
    return set;
}

RVPriceClassSet RVPriceClassSet::frameGlasses()
{
    RVPriceClassSet result;
    result.insert(frameGlass());
    result.insert(frameLamination());
    return result;
}

RVPriceClassSet RVPriceClassSet::spotColorAll()
{
    RVPriceClassSet result = spotColorGloss();
    result.unite(spotColorGoldSilver());
    result.unite(spotColorSilverInk());
    return result;
}

RVPriceClassSet RVPriceClassSet::calendarFrameClasses()
{
    RVPriceClassSet result;
    result.unite(calendarStrips());
    result.unite(calendarStandPriceClasses());
    result.unite(wallholderThatActsLikeAFrame());
    return result;
}

RVPriceClassSet RVPriceClassSet::pxwNewDesignPriceClasses()
{
    RVPriceClassSet result;
    result.unite(pxwCoverDesignPriceClasses());
    result.unite(pxwInnerPagesDesignPriceClasses());
    return result;
}

RVPriceClassSet RVPriceClassSet::spotColorPriceClasses(const RVSpotColor &color)
{
    switch (color.value()) {
    case SPOT_COLOR_GLOSS:
        return spotColorGloss();
    case SPOT_COLOR_GOLD:
    case SPOT_COLOR_SILVER:
    case SPOT_COLOR_ROSEGOLD:
        return spotColorGoldSilver();
    case SPOT_COLOR_SILVER_INK:
        return spotColorSilverInk();
    }
    return RVPriceClassSet();
}

bool RVPriceClassSet::containsOneOf(const RVPriceClassSet &other) const
{
    return std::any_of(other.begin(), other.end(),
                       [this](const RVPriceClass &priceClass) { return contains(priceClass); });
}

QString RVPriceClassSet::toString() const
{
    QStringList codes;
    for (const RVPriceClass &priceClass : *this)
        codes += priceClass.toString();
    return codes.join(KOMMA);
}

QDebug operator<<(QDebug debug, const RVPriceClassSet &priceClasses)
{
    for (const RVPriceClass &priceClass : priceClasses)
        debug << priceClass.toString();
    return debug;
}
