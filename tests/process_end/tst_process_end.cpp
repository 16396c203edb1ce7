#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVBarcodeDefinition.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVDlpType.h>
#include <RVProductBase/RVFotoPaperType.h>
#include <RVProductBase/RVMargins.h>
#include <RVProductBase/RVMaterialType.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageAlignment.h>
#include <RVProductBase/RVPageBinding.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVProductBase/RVPageType.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVPriceClassSet.h>
#include <RVProductBase/RVProductArrangement.h>
#include <RVProductBase/RVProductCheckerRegistry.h>
#include <RVProductBase/RVProductType.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVSpaceMagnitude.h>

#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVCore/RVSpotColor.h>

#include <QRegularExpressionMatch>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

// Destructors of static objects run when main() has returned, and may still ask the library for all that it hands out.
// The program asks from one, after main() has asked the same. With the argument "late" main() does not ask.

namespace {

struct Question
{
    const char *what;
    QString (*ask)();
    const char *answer;
};

QString size(const RVPriceClassSet &set)
{
    return QString::number(set.size());
}

QString movedFrom()
{
    RVMargins margins(1, 2, 3, 4);
    const RVMargins taken = std::move(margins);
    return QString::number(margins.left() + taken.left()); // NOLINT(bugprone-use-after-move)
}

// clang-format off
constexpr Question QUESTIONS[] = {
    { "name of a cover", [] { return RVCoverType(LEATHER).humanReadableName(); }, "Leder" },
    { "unknown name of a cover", [] { return RVCoverType(CERAMICS).humanReadableName(); }, "unbekannter Bindungstyp" },
    { "cover of a name", [] { return RVCoverType::createFromHumanReadable(u"Heft"_s).encode(); }, "BOOKLET" },
    { "all names of covers", [] { return QString::number(RVCoverType::bindingNames().names.size()); }, "31" },
    { "tool tip of a cover", [] { return RVCoverType(CALENDAR_DUPLEX).toolTip(); },
      "Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen." },
    { "all tool tips of covers", [] { return QString::number(RVCoverType::bindingToolTips().names.size()); }, "9" },
    { "name of a size", [] { return RVSpaceMagnitude(SPACE_MAGNITUDE_600CM2).humanReadableName(); }, "A4" },
    { "size of a name", [] { return RVSpaceMagnitude::createFromHumanReadable(u"A4"_s).encode(); }, "600cm2" },
    { "all names of sizes", [] { return QString::number(RVSpaceMagnitude::names().names.size()); }, "11" },
    { "name of a binding", [] { return RVPageBinding(LAYFLAT).humanReadableName(); }, "Lay-Flat-Bindung" },
    { "all names of bindings", [] { return QString::number(RVPageBinding::pageBindingNames().names.size()); }, "3" },
    { "name of a paper", [] { return RVPaperType(FOTOPAPER).humanReadableName(); }, "Fotopapier Matt" },
    { "paper of a name", [] { return RVPaperType::createFromHumanReadable(u"Premiumpapier"_s).encode(); }, "premium" },
    { "all names of papers", [] { return QString::number(RVPaperType::paperTypeNames().names.size()); }, "8" },
    { "texts of papers", [] { return RVPaperType::translatedPaperTypes().value(u"Digitaldruck Glaenzend"_s); },
      "Digitaldruck Hochglanz" },
    { "name of a photo paper", [] { return RVFotoPaperType(MATT).humanReadableName(); }, "Matt" },
    { "name of an orientation", [] { return RVOrientation(ORIENTATION_PORTRAIT).humanReadable(); }, "Hochkant-" },
    { "name of an alignment", [] { return RVPageAlignment(PAGE_ALIGNMENT_TOP).describe(); }, "oben" },

    { "keyword of an article class", [] { return RVArticleClass(ARTICLE_CLASS_BOOK).encode(); }, "book" },
    { "keyword of content", [] { return RVDlpType(DLP_TYPE_CLIPART).encode(); }, "clipart" },
    { "keyword of a material", [] { return RVMaterialType(u"deco_print"_s).encode(); }, "deco_print" },
    { "keyword of a page type", [] { return RVPageType(u"content"_s).encode(); }, "normalpage" },
    { "keyword of an arrangement", [] { return RVProductArrangement(u"gift"_s).encode(); }, "gift" },
    { "keyword of a spot colour", [] { return RVSpotColor(SPOT_COLOR_SILVER_INK).encode(); }, "silver_ink" },

    { "spotColorGloss", [] { return size(RVPriceClassSet::spotColorGloss()); }, "19" },
    { "spotColorGoldSilver", [] { return size(RVPriceClassSet::spotColorGoldSilver()); }, "30" },
    { "spotColorSilverInk", [] { return size(RVPriceClassSet::spotColorSilverInk()); }, "0" },
    { "bookGiftBoxes", [] { return size(RVPriceClassSet::bookGiftBoxes()); }, "4" },
    { "bookGiftService", [] { return size(RVPriceClassSet::bookGiftService()); }, "4" },
    { "calendarGiftService", [] { return size(RVPriceClassSet::calendarGiftService()); }, "1" },
    { "calendarGiftBoxes", [] { return size(RVPriceClassSet::calendarGiftBoxes()); }, "2" },
    { "maps", [] { return size(RVPriceClassSet::maps()); }, "2" },
    { "envelops", [] { return size(RVPriceClassSet::envelops()); }, "9" },
    { "calendarStrips", [] { return size(RVPriceClassSet::calendarStrips()); }, "3" },
    { "posterWoodenStrips", [] { return size(RVPriceClassSet::posterWoodenStrips()); }, "5" },
    { "wallholderThatActsLikeAFrame", [] { return size(RVPriceClassSet::wallholderThatActsLikeAFrame()); }, "1" },
    { "wallholderPriceClasses", [] { return size(RVPriceClassSet::wallholderPriceClasses()); }, "18" },
    { "mattCoverPriceClasses", [] { return size(RVPriceClassSet::mattCoverPriceClasses()); }, "8" },
    { "linenCoverPriceClasses", [] { return size(RVPriceClassSet::linenCoverPriceClasses()); }, "6" },
    { "flyleafAndInsideCoverPriceClasses", [] { return size(RVPriceClassSet::flyleafAndInsideCoverPriceClasses()); }, "13" },
    { "calendarStandPriceClasses", [] { return size(RVPriceClassSet::calendarStandPriceClasses()); }, "1" },
    { "memorabiliaPocketPriceClass", [] { return size(RVPriceClassSet::memorabiliaPocketPriceClass()); }, "8" },
    { "artPrintBoxPriceClasses", [] { return size(RVPriceClassSet::artPrintBoxPriceClasses()); }, "2" },
    { "pxwPanoPagesPriceClasses", [] { return size(RVPriceClassSet::pxwPanoPagesPriceClasses()); }, "1" },
    { "pxwInnerPagesDesignPriceClasses", [] { return size(RVPriceClassSet::pxwInnerPagesDesignPriceClasses()); }, "1" },
    { "pxwCoverDesignPriceClasses", [] { return size(RVPriceClassSet::pxwCoverDesignPriceClasses()); }, "1" },
    { "videoNames", [] { return size(RVPriceClassSet::videoNames()); }, "14" },
    { "pageIncrements", [] { return size(RVPriceClassSet::pageIncrements()); }, "2" },
    { "designPriceClasses", [] { return size(RVPriceClassSet::designPriceClasses()); }, "9" },
    { "spotColorAll", [] { return size(RVPriceClassSet::spotColorAll()); }, "49" },

    { "option of a text", [] { return RVArticleVariants(u"alcolor+red"_s).value(u"alcolor"_s); }, "red" },
    { "stock preview", [] { return RVConfiguredArticleVariant(u"spiral"_s, u"black"_s).preview(); },
      "calendar_binding_spiral_black" },
    { "family of a photo book", [] { return RVProductType(u"DUN9_30"_s).toString(); }, "DUN9" },
    { "margins that were moved from", movedFrom, "3" },
    { "page counts", [] {
          return QString::number(RVPageOrganizationManager::instance()->pageCountOrganzation(u"DUN9"_s).isValid());
      }, "0" },
    { "product checkers", [] {
          return QString::number(RVProductCheckerRegistry::instance()->isValid(u"DUN9"_s, 1));
      }, "1" },
    { "font sizes", [] {
          return QString::number(RVFontSizeManager::instance()->defaultFontSizes().constFirst());
      }, "6" },
    { "resource", [] { return RVDirectoryConfig::instance()->resource(u"no/such.file"_s, false); }, "no/such.file" },
};

// Objects that are defined outside of functions are destroyed last.
constexpr Question LAST_QUESTIONS[] = {
    { "key of an article id", [] { return RVArticleId::ARTICLE_ID_KEY; }, "id" },
    { "second key of an article id", [] { return RVArticleId::ARTICLE_ART_ID_KEY; }, "art_id" },
    { "third key of an article id", [] { return RVArticleId::ARTICLE_ARTICLE_ID_KEY; }, "article_id" },
    { "key of a shipping group", [] { return RVShippingGroupId::SHIPPING_GROUP_ID_KEY; }, "id" },
    { "image of a barcode", [] { return RVBarcodeDefinition::DEFAULT_IMAGE_NAME; }, "dummy-barcode.png" },
    { "pattern of photo books", [] { return RVProductType::myBookRegExp.match(u"DXDUNS12XL"_s).captured(1); }, "DUNS12" },
};
// clang-format on

template<std::size_t N>
void ask(const Question (&questions)[N], const char *when)
{
    for (const Question &question : questions) {
        const QString answer = question.ask();
        if (answer != QString::fromUtf8(question.answer)) {
            std::fprintf(stderr, "%s, %s is \"%s\" instead of \"%s\"\n", when, question.what, qPrintable(answer),
                         question.answer);
            std::_Exit(1);
        }
    }
}

struct AsksWhenDestroyed
{
    ~AsksWhenDestroyed()
    {
        ask(QUESTIONS, "in a destructor");
        ask(LAST_QUESTIONS, "in a destructor");
        std::fprintf(stderr, "asked in a destructor\n");
    }
};

const AsksWhenDestroyed asksWhenDestroyed;

[[gnu::destructor]] void askLast()
{
    ask(LAST_QUESTIONS, "at the very end");
    std::fprintf(stderr, "asked at the very end\n");
}

}

int main(int argc, char *argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "late") == 0)
        return 0;
    ask(QUESTIONS, "in main");
    ask(LAST_QUESTIONS, "in main");
    return 0;
}
