// Getting a named group of price classes, compared with writing the set as a literal.
#include "Comparison.h"

#include <RVPriceClassSet.h>

#include <QList>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Codes = QSet<QString>;

struct Group
{
    RVPriceClassSet (*ours)();
    Codes (*literals)();
};

/// Every group that is returned as it is stored.
constexpr Group GROUPS[] = {
    { RVPriceClassSet::spotColorGloss,
      [] {
          return Codes { u"KUR2"_s,  u"KUR4"_s,  u"KUR6"_s,  u"KUR8"_s,  u"KUR10"_s, u"KUR12"_s, u"KUR14"_s,
                         u"KUR16"_s, u"KUR18"_s, u"KUR20"_s, u"KUR22"_s, u"KUR24"_s, u"KUR38"_s, u"KUR40"_s,
                         u"KUR42"_s, u"KUR44"_s, u"KUR46"_s, u"KUR48"_s, u"KUR50"_s };
      } },
    { RVPriceClassSet::spotColorGoldSilver,
      [] {
          return Codes { u"KUR1"_s,   u"KUR3"_s,   u"KUR5"_s,   u"KUR7"_s,   u"KUR9"_s,   u"KUR11"_s,
                         u"KUR13"_s,  u"KUR15"_s,  u"KUR17"_s,  u"KUR19"_s,  u"KUR21"_s,  u"KUR23"_s,
                         u"KUR25"_s,  u"KUR26"_s,  u"KUR37"_s,  u"KUR39"_s,  u"KUR41"_s,  u"KUR43"_s,
                         u"KUR45"_s,  u"KUR47"_s,  u"KUR49"_s,  u"KUR501"_s, u"KUR502"_s, u"KUR503"_s,
                         u"KUR504"_s, u"KUR505"_s, u"KUR507"_s, u"KUR508"_s, u"KUR509"_s, u"KUR551"_s };
      } },
    { RVPriceClassSet::bookGiftBoxes, [] { return Codes { u"VEL4"_s, u"VEL5"_s, u"VEL6"_s, u"VEL7"_s }; } },
    { RVPriceClassSet::bookGiftService, [] { return Codes { u"HAZ5"_s, u"HAZ6"_s, u"HAZ7"_s, u"HAZ8"_s }; } },
    { RVPriceClassSet::calendarGiftService, [] { return Codes { u"HAZ9"_s }; } },
    { RVPriceClassSet::calendarGiftBoxes, [] { return Codes { u"HAZ10"_s, u"HAZ11"_s }; } },
    { RVPriceClassSet::maps, [] { return Codes { u"JOT1"_s, u"JOT51"_s }; } },
    { RVPriceClassSet::envelops,
      [] {
          return Codes { u"YIB1"_s, u"YIB2"_s, u"YIB3"_s, u"YIB4"_s, u"YIB5"_s,
                         u"YIB6"_s, u"YIB7"_s, u"YIB8"_s, u"YIB9"_s };
      } },
    { RVPriceClassSet::calendarStrips, [] { return Codes { u"NUS1"_s, u"NUS2"_s, u"NUS3"_s }; } },
    { RVPriceClassSet::calendarStandPriceClasses, [] { return Codes { u"ZUD1"_s }; } },
    { RVPriceClassSet::posterWoodenStrips,
      [] { return Codes { u"BIX1"_s, u"BIX2"_s, u"BIX3"_s, u"BIX4"_s, u"BIX5"_s }; } },
    { RVPriceClassSet::wallholderThatActsLikeAFrame, [] { return Codes { u"QO20"_s }; } },
    { RVPriceClassSet::wallholderPriceClasses,
      [] {
          return Codes { u"QO2"_s,  u"QO4"_s,  u"QO5"_s,  u"QO6"_s,  u"QO7"_s,   u"QO8"_s,
                         u"QO9"_s,  u"QO10"_s, u"QO11"_s, u"QO12"_s, u"QO16"_s,  u"QO17"_s,
                         u"QO18"_s, u"QO19"_s, u"QO20"_s, u"QO21"_s, u"QO202"_s, u"QO212"_s };
      } },
    { RVPriceClassSet::memorabiliaPocketPriceClass,
      [] { return Codes { u"GEK1"_s, u"GEK2"_s, u"GEK3"_s, u"GEK4"_s, u"GEK5"_s, u"GEK6"_s, u"GEK7"_s, u"GEK8"_s }; } },
    { RVPriceClassSet::artPrintBoxPriceClasses, [] { return Codes { u"TY64"_s, u"TY65"_s }; } },
    { RVPriceClassSet::videoNames,
      [] {
          return Codes { u"MUL1"_s, u"MUL2"_s, u"MUL3"_s,  u"MUL4"_s,  u"MUL5"_s,  u"MUL6"_s,  u"MUL7"_s,
                         u"MUL8"_s, u"MUL9"_s, u"MUL51"_s, u"MUL52"_s, u"MUL53"_s, u"MUL54"_s, u"MUL55"_s };
      } },
    { RVPriceClassSet::mattCoverPriceClasses,
      [] {
          return Codes {
              u"KUR29"_s, u"KUR30"_s, u"KUR31"_s, u"KUR32"_s, u"KUR33"_s, u"KUR34"_s, u"KUR35"_s, u"KUR36"_s
          };
      } },
    { RVPriceClassSet::linenCoverPriceClasses,
      [] { return Codes { u"LEZ1"_s, u"LEZ2"_s, u"LEZ3"_s, u"LEZ4"_s, u"LEZ5"_s, u"LEZ6"_s }; } },
    { RVPriceClassSet::flyleafAndInsideCoverPriceClasses,
      [] {
          return Codes { u"SAV1"_s, u"SAV2"_s, u"SAV3"_s,  u"SAV4"_s,  u"SAV5"_s,  u"SAV6"_s, u"SAV7"_s,
                         u"SAV8"_s, u"SAV9"_s, u"SAV10"_s, u"SAV11"_s, u"SAV12"_s, u"SAV13"_s };
      } },
    { RVPriceClassSet::pxwPanoPagesPriceClasses, [] { return Codes { u"WAF3"_s }; } },
    { RVPriceClassSet::pageIncrements, [] { return Codes { u"RODA6x9"_s, u"KEMI62"_s }; } },
    { RVPriceClassSet::pxwInnerPagesDesignPriceClasses, [] { return Codes { u"premium_inner_pages_design"_s }; } },
    { RVPriceClassSet::pxwCoverDesignPriceClasses, [] { return Codes { u"premium_cover_design"_s }; } },
};

bool sameCodes(const RVPriceClassSet &ours, const Codes &theirs)
{
    Codes codes;
    for (const RVPriceClass &priceClass : ours)
        codes.insert(priceClass.toString());
    return codes == theirs;
}

}

void addBenchmarks()
{
    const QList<Group> groups(std::begin(GROUPS), std::end(GROUPS));
    QList<RVPriceClassSet> sets;
    for (const Group &group : groups)
        sets += group.ours();
    Comparison("price_class_set", groups, [](const Group &group) { return group.ours(); })
            .against(
                    "literals", [](const Group &group) { return group.literals(); }, sameCodes)
            .above(sets, [](const RVPriceClassSet &set) { return set; });
}
