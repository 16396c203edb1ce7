#include "RVPageType.h"

#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVSpotColor.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVPageTypeEnum>;

namespace {

constexpr RVKeyword<RVPageTypeEnum> KEYWORDS[] = {
    { u"fullcover", PAGE_TYPE_FULLCOVER },
    { u"cover", PAGE_TYPE_COVER },
    { u"spine", PAGE_TYPE_SPINE },
    { u"emptypage", PAGE_TYPE_EMPTYPAGE },
    { u"empty", PAGE_TYPE_EMPTYPAGE },
    { u"normalpage", PAGE_TYPE_NORMALPAGE },
    { u"normal", PAGE_TYPE_NORMALPAGE },
    { u"content", PAGE_TYPE_NORMALPAGE },
    { u"cardback", PAGE_TYPE_CARDBACK },
    { u"cardfront", PAGE_TYPE_CARDFRONT },
    { u"normalcardback", PAGE_TYPE_NORMALCARDBACK },
    { u"normalcardfront", PAGE_TYPE_NORMALCARDFRONT },
    { u"normaladvdoorback", PAGE_TYPE_NORMALADVDOORBACK },
    { u"advdoorback", PAGE_TYPE_ADVDOORBACK },
    { u"duplexcard", PAGE_TYPE_DUPLEXCARD },
    { u"foldedduplexcard", PAGE_TYPE_FOLDEDDUPLEXCARD },
    { u"artprints", PAGE_TYPE_ARTPRINTS },
    { u"advwithdoorbackprint", PAGE_TYPE_ADVWITHDOORBACKPRINT },
    { u"leather", PAGE_TYPE_LEATHER },
    { u"cromolinen", PAGE_TYPE_CROMOLINEN },
    { u"calendarcoverback", PAGE_TYPE_CALENDARCOVERBACK },
    { u"calendarcoverfront", PAGE_TYPE_CALENDARCOVERFRONT },
    { u"calendercoverfront", PAGE_TYPE_CALENDARCOVERFRONT }, // spelt so on purpose
    { u"normalpages", PAGE_TYPE_NORMALPAGES },
    { u"all", PAGE_TYPE_ALL },
    { u"slipcasefrontcover", PAGE_TYPE_SLIPCASEFRONTCOVER },
    { u"slipcasebackcover", PAGE_TYPE_SLIPCASEBACKCOVER },
    { u"slipcasespine", PAGE_TYPE_SLIPCASESPINE },
    { u"slipcaseemptyspine", PAGE_TYPE_SLIPCASEEMPTYSPINE },
    { u"slipcasesequence", PAGE_TYPE_SLIPCASESEQUENCE },
    { u"slipcasecover", PAGE_TYPE_SLIPCASECOVER },
    { u"slipcasepages", PAGE_TYPE_SLIPCASEPAGES },
    { u"pc57insertedfoto", PAGE_TYPE_PC57INSERTEDFOTO },
    { u"panobasepage", PAGE_TYPE_PANOBASEPAGE },
    { u"panowingpage", PAGE_TYPE_PANOWINGPAGE },
    { u"panorama_base", PAGE_TYPE_PANORAMA_BASE },
    { u"panorama_wing", PAGE_TYPE_PANORAMA_WING },
    { u"PanoramaPages", PAGE_TYPE_PANORAMA_PAGES },
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
    // Linen and leather take neither gloss nor silver ink.
    if (matches(TEXTILE_COVER))
        return !hasSilverInk && !colors.contains(RVSpotColor(SPOT_COLOR_GLOSS));
    return !hasSilverInk || matches(PAGE_TYPE_CARDFRONT | PAGE_TYPE_FULLCOVER);
}

void RVPageType::fillTable(RVEnumToStringTable<RVPageTypeEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVPageType &pageType)
{
    return rvDebugAttribute(debug, "RVPageType", pageType);
}

QDebug operator<<(QDebug debug, RVPageTypeEnum value)
{
    return debug << RVEnumerators<RVPageTypeEnum>::text(value).constData();
}
