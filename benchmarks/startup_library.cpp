// Loads the library and uses every table once: keywords, names, groups of price classes, patterns, the services.
#include <RVArticleClass.h>
#include <RVArticleVariants.h>
#include <RVCatalogueAttributes.h>
#include <RVConfiguredArticleVariant.h>
#include <RVCoverType.h>
#include <RVDirectoryConfig.h>
#include <RVDlpType.h>
#include <RVFontCreator.h>
#include <RVFontSizeManager.h>
#include <RVFotoPaperType.h>
#include <RVOrientation.h>
#include <RVPageAlignment.h>
#include <RVPageBinding.h>
#include <RVPageOrganizationManager.h>
#include <RVPaperType.h>
#include <RVPriceClassSet.h>
#include <RVProductCheckerRegistry.h>
#include <RVProductType.h>
#include <RVSpaceMagnitude.h>

#include <QCoreApplication>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// Uses only the classes of the list, so the library of catalogues is not loaded.
template<typename... Attributes>
void useKeywords(const std::tuple<RVCatalogueAttributeRow<Attributes>...> *)
{
    (static_cast<void>(Attributes(u"none"_s).encode()), ...);
}

void useNames()
{
    RVCoverType::bindingNames();
    RVCoverType::bindingToolTips();
    RVPageBinding::pageBindingNames();
    RVPaperType::paperTypeNames();
    RVSpaceMagnitude::names();
    RVArticleClass(ARTICLE_CLASS_BOOK).toHumanReadable();
    RVDlpType().visibleName(-1);
    RVFotoPaperType().humanReadableName();
    RVOrientation(ORIENTATION_SQUARE).humanReadable();
    RVPageAlignment().describe();
    RVConfiguredArticleVariant(u"spiral"_s, u"silver"_s).preview();
}

void usePriceClasses()
{
    RVPriceClassSet::spotColorAll();
    RVPriceClassSet::bookGiftBoxes();
    RVPriceClassSet::bookGiftService();
    RVPriceClassSet::calendarGiftService();
    RVPriceClassSet::calendarGiftBoxes();
    RVPriceClassSet::maps();
    RVPriceClassSet::envelops();
    RVPriceClassSet::calendarFrameClasses();
    RVPriceClassSet::posterWoodenStrips();
    RVPriceClassSet::wallholderPriceClasses();
    RVPriceClassSet::memorabiliaPocketPriceClass();
    RVPriceClassSet::artPrintBoxPriceClasses();
    RVPriceClassSet::videoNames();
    RVPriceClassSet::mattCoverPriceClasses();
    RVPriceClassSet::linenCoverPriceClasses();
    RVPriceClassSet::flyleafAndInsideCoverPriceClasses();
    RVPriceClassSet::pxwPanoPagesPriceClasses();
    RVPriceClassSet::pageIncrements();
    RVPriceClassSet::designPriceClasses();
}

void useServices()
{
    RVDirectoryConfig::instance();
    RVFontCreator::instance();
    RVFontSizeManager::instance();
    RVPageOrganizationManager::instance()->organization(RVProductType(u"DUN9_30"_s));
    RVProductCheckerRegistry::instance()->isValid(RVProductType(u"DUN9_30"_s), 1);
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    useKeywords(static_cast<decltype(&RV_CATALOGUE_ATTRIBUTES)>(nullptr));
    useNames();
    usePriceClasses();
    RVArticleVariants::createFromKTX(u"alcolor:red"_s);
    useServices();
    return 0;
}
