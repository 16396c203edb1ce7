#include "RVPriceClassCheck_p.h"

#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"

#include <RVPriceClassSet.h>

#include <algorithm>

namespace {

RVPriceClassSet knownPriceClasses()
{
    RVPriceClassSet result = { RVPriceClassSet::framePassepartout().toString() };
    for (const RVPriceClassSet &group : { RVPriceClassSet::frameGlasses(),
                                          RVPriceClassSet::spotColorAll(),
                                          RVPriceClassSet::bookGiftBoxes(),
                                          RVPriceClassSet::bookGiftService(),
                                          RVPriceClassSet::calendarGiftService(),
                                          RVPriceClassSet::calendarGiftBoxes(),
                                          RVPriceClassSet::maps(),
                                          RVPriceClassSet::envelops(),
                                          RVPriceClassSet::calendarFrameClasses(),
                                          RVPriceClassSet::posterWoodenStrips(),
                                          RVPriceClassSet::wallholderPriceClasses(),
                                          RVPriceClassSet::memorabiliaPocketPriceClass(),
                                          RVPriceClassSet::artPrintBoxPriceClasses(),
                                          RVPriceClassSet::videoNames(),
                                          RVPriceClassSet::mattCoverPriceClasses(),
                                          RVPriceClassSet::linenCoverPriceClasses(),
                                          RVPriceClassSet::flyleafAndInsideCoverPriceClasses(),
                                          RVPriceClassSet::pxwPanoPagesPriceClasses(),
                                          RVPriceClassSet::pageIncrements(),
                                          RVPriceClassSet::designPriceClasses() })
        result.unite(group);
    return result;
}

/// In UTF-8, as catalogues have them, so that no text is converted to find one.
bool isKnown(QByteArrayView code)
{
    static const QList<QByteArray> theCodes = [] {
        QList<QByteArray> result;
        for (const RVPriceClass &priceClass : knownPriceClasses())
            result += priceClass.toString().toUtf8();
        std::sort(result.begin(), result.end());
        return result;
    }();
    return std::binary_search(theCodes.begin(), theCodes.end(), code);
}

}

void RVPriceClassCheck::check(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView code = element.utf8(name);
    if (code.isEmpty() || isKnown(code))
        return;
    const RVPriceClass priceClass(element.attribute(name));
    if (priceClass.isFree())
        return;
    myReport->add(
            RVCatalogueRuleId::PriceClassUnknown, element, name,
            RVFindingText::tr("the price class %1 belongs to no known group").arg(rvQuoted(priceClass.toString())));
}
