#include "RVPageType.h"

#include "RVKeywords_p.h"
#include "RVSpotColor.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVPageTypeEnum>;

namespace {

constexpr RVKeyword<RVPageTypeEnum> KEYWORDS[] = {
    { "fullcover"_L1, PAGE_TYPE_FULLCOVER },
    { "cover"_L1, PAGE_TYPE_COVER },
    { "spine"_L1, PAGE_TYPE_SPINE },
    { "emptypage"_L1, PAGE_TYPE_EMPTYPAGE },
    { "empty"_L1, PAGE_TYPE_EMPTYPAGE },
    { "normalpage"_L1, PAGE_TYPE_NORMALPAGE },
    { "normal"_L1, PAGE_TYPE_NORMALPAGE },
    { "content"_L1, PAGE_TYPE_NORMALPAGE },
    { "cardback"_L1, PAGE_TYPE_CARDBACK },
    { "cardfront"_L1, PAGE_TYPE_CARDFRONT },
    { "normalcardback"_L1, PAGE_TYPE_NORMALCARDBACK },
    { "normalcardfront"_L1, PAGE_TYPE_NORMALCARDFRONT },
    { "normaladvdoorback"_L1, PAGE_TYPE_NORMALADVDOORBACK },
    { "advdoorback"_L1, PAGE_TYPE_ADVDOORBACK },
    { "duplexcard"_L1, PAGE_TYPE_DUPLEXCARD },
    { "foldedduplexcard"_L1, PAGE_TYPE_FOLDEDDUPLEXCARD },
    { "artprints"_L1, PAGE_TYPE_ARTPRINTS },
    { "advwithdoorbackprint"_L1, PAGE_TYPE_ADVWITHDOORBACKPRINT },
    { "leather"_L1, PAGE_TYPE_LEATHER },
    { "cromolinen"_L1, PAGE_TYPE_CROMOLINEN },
    { "calendarcoverback"_L1, PAGE_TYPE_CALENDARCOVERBACK },
    { "calendarcoverfront"_L1, PAGE_TYPE_CALENDARCOVERFRONT },
    { "calendercoverfront"_L1, PAGE_TYPE_CALENDARCOVERFRONT }, // old catalogues spell it so
    { "normalpages"_L1, PAGE_TYPE_NORMALPAGES },
    { "all"_L1, PAGE_TYPE_ALL },
    { "slipcasefrontcover"_L1, PAGE_TYPE_SLIPCASEFRONTCOVER },
    { "slipcasebackcover"_L1, PAGE_TYPE_SLIPCASEBACKCOVER },
    { "slipcasespine"_L1, PAGE_TYPE_SLIPCASESPINE },
    { "slipcaseemptyspine"_L1, PAGE_TYPE_SLIPCASEEMPTYSPINE },
    { "slipcasesequence"_L1, PAGE_TYPE_SLIPCASESEQUENCE },
    { "slipcasecover"_L1, PAGE_TYPE_SLIPCASECOVER },
    { "slipcasepages"_L1, PAGE_TYPE_SLIPCASEPAGES },
    { "pc57insertedfoto"_L1, PAGE_TYPE_PC57INSERTEDFOTO },
    { "panobasepage"_L1, PAGE_TYPE_PANOBASEPAGE },
    { "panowingpage"_L1, PAGE_TYPE_PANOWINGPAGE },
    { "panorama_base"_L1, PAGE_TYPE_PANORAMA_BASE },
    { "panorama_wing"_L1, PAGE_TYPE_PANORAMA_WING },
    { "PanoramaPages"_L1, PAGE_TYPE_PANORAMA_PAGES },
};

constexpr RVPageTypeEnum TEXTILE_COVER = PAGE_TYPE_CROMOLINEN | PAGE_TYPE_LEATHER;
constexpr RVPageTypeEnum BOOK_COVER = PAGE_TYPE_SPINE | PAGE_TYPE_FULLCOVER | TEXTILE_COVER;

}

RVPageType::RVPageType(RVPageTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVPageType::RVPageType(const QString &text) : RVPageType()
{
    setValue(text);
}

void RVPageType::expandToKeyword(const QString &text)
{
    *this |= decodeCSV(text);
}

int RVPageType::productionRenderingRule() const
{
    switch (value()) {
    case PAGE_TYPE_EMPTYPAGE:
    case PAGE_TYPE_CALENDARCOVERBACK:
    case PAGE_TYPE_SLIPCASEEMPTYSPINE:
        return 0;
    case PAGE_TYPE_NORMALPAGE:
    case PAGE_TYPE_NORMALCARDFRONT:
    case PAGE_TYPE_NORMALCARDBACK:
    case PAGE_TYPE_CALENDARCOVERFRONT:
    case PAGE_TYPE_SLIPCASESPINE:
    case PAGE_TYPE_SLIPCASEFRONTCOVER:
    case PAGE_TYPE_SLIPCASEBACKCOVER:
    case PAGE_TYPE_PANOBASEPAGE:
    case PAGE_TYPE_PANOWINGPAGE:
        return 1;
    default:
        return 2;
    }
}

int RVPageType::explicitOrderPageNumber() const
{
    switch (value()) {
    case PAGE_TYPE_SLIPCASESPINE:
    case PAGE_TYPE_SLIPCASEFRONTCOVER:
        return 2;
    case PAGE_TYPE_SLIPCASEBACKCOVER:
    case PAGE_TYPE_CALENDARCOVERFRONT:
    case PAGE_TYPE_CALENDARCOVERBACK:
        return 1;
    default:
        return matches(BOOK_COVER) ? 0 : -1;
    }
}

int RVPageType::acceptTemplateRule() const
{
    if (isNull())
        return 0;
    switch (value()) {
    case PAGE_TYPE_EMPTYPAGE:
    case PAGE_TYPE_CALENDARCOVERBACK:
        return 0;
    case PAGE_TYPE_NORMALPAGE:
    case PAGE_TYPE_NORMALCARDFRONT:
    case PAGE_TYPE_NORMALCARDBACK:
    case PAGE_TYPE_CALENDARCOVERFRONT:
    case PAGE_TYPE_PANOBASEPAGE:
    case PAGE_TYPE_PANOWINGPAGE:
        return 3;
    default:
        return 7;
    }
}

int RVPageType::acceptFotoRule() const
{
    switch (value()) {
    case PAGE_TYPE_EMPTYPAGE:
    case PAGE_TYPE_CALENDARCOVERBACK:
    case PAGE_TYPE_CROMOLINEN:
    case PAGE_TYPE_LEATHER:
        return 0;
    default:
        return 3;
    }
}

bool RVPageType::isSpotColorAllowed(const QList<RVSpotColor> &colors) const
{
    const bool hasSilverInk = colors.contains(RVSpotColor(SPOT_COLOR_SILVER_INK));
    // Nothing glossy and no ink on linen and leather, only embossing.
    if (matches(TEXTILE_COVER))
        return !hasSilverInk && !colors.contains(RVSpotColor(SPOT_COLOR_GLOSS));
    return !hasSilverInk || matches(PAGE_TYPE_CARDFRONT | PAGE_TYPE_FULLCOVER);
}

void RVPageType::fillTable(RVEnumToStringTable<RVPageTypeEnum> *table) const
{
    rvInsertKeywords(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVPageType &pageType)
{
    return rvDebugAttribute(debug, "RVPageType", pageType);
}
