#include "ProductCheck.h"

#include "CatalogueBatch.h"
#include "CatalogueValue.h"

#include <RVFontCreator.h>
#include <RVFontSizeManager.h>
#include <RVPriceClassSet.h>

#include <QColor>
#include <QDomDocument>
#include <QFont>
#include <QFontMetrics>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array PAGE_NUMBERS = { "pages"_L1, "max_pages"_L1, "page_step"_L1, "pieces"_L1 };
constexpr std::array SPINE_WIDTHS = { "base_width"_L1, "block_width"_L1, "additional_width"_L1 };
constexpr std::array BARCODE_LENGTHS = { "position_x"_L1, "position_y"_L1, "width"_L1, "height"_L1 };
constexpr std::array UNITS = { "mm"_L1, "cm"_L1, "inch"_L1, "in"_L1, "pt"_L1, "point"_L1, "0.1mm"_L1 };
/// Barcodes are measured in tenths of a millimetre. No printer prints three metres.
constexpr qint64 SQUARE_CENTIMETRE = 10000;
constexpr int LONGEST_PAGE = 30000;
constexpr qreal USABLE_PART_OF_SPINE = 0.85;

template<typename Names>
bool contains(const Names &names, QStringView name)
{
    return std::any_of(names.begin(), names.end(), [&](QLatin1StringView each) { return name == each; });
}

QString inLine(const FilePosition &position)
{
    return u"in line %1"_s.arg(position.line);
}

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

/// True when the spine is too narrow for the smallest font, by the measure of RVSpineConfig::spineMaxFontHeigth().
bool isTooNarrow(const RVSpineConfig &spine, int pages)
{
    const QList<int> sizes = RVFontSizeManager::instance()->defaultFontSizes();
    if (sizes.isEmpty())
        return false;
    RVFontCreator *fonts = RVFontCreator::instance();
    const QFontMetrics smallest(fonts->createFont(fonts->defaultFontFamily(), sizes.first()));
    const RVDistance width = spine.spineWidth(unsigned(qMax(0, pages))) - spine.additionalSpineWidth() * 2.0;
    return smallest.lineSpacing() > std::round(width.value() * USABLE_PART_OF_SPINE);
}

bool overlap(const QRect &a, const QRect &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

/// The least area in cm² that a page has where the barcode fits, measured from its upper left corner.
int leastPageArea(const QRect &barcode)
{
    const qint64 area = (qint64(barcode.right()) + 1) * (qint64(barcode.bottom()) + 1) / SQUARE_CENTIMETRE;
    return int(qMin(area, qint64(std::numeric_limits<int>::max())));
}

CatalogueElement formsOf(const CatalogueElement &product)
{
    return product.firstChildElement("forms"_L1);
}

/// Calls a function with every child of that name.
template<typename Function>
void forEachChild(const CatalogueElement &parent, QLatin1StringView name, Function function)
{
    for (CatalogueElement child = parent.firstChildElement(name); !child.isNull();
         child = child.nextSiblingElement(name))
        function(child);
}

}

ProductCheck::ProductCheck(const QSet<QString> &disabledRules) : myDisabledRules(disabledRules) { }

CheckedProduct ProductCheck::check(const CatalogueElement &product, qint64 number)
{
    myProduct = CatalogueProduct::withoutOptions(product);
    myResult = CheckedProduct();
    myResult.position = product.position();
    myNumber = number;
    checkIds(product);
    checkKeywords(product);
    checkPageCounts(product);
    checkSpine(product);
    checkOptions(product);
    checkBarcodes(product);
    checkPriceClass(product, "page_price_class"_L1);
    std::stable_sort(myResult.findings.begin(), myResult.findings.end(),
                     [](const CatalogueFinding &a, const CatalogueFinding &b) { return a.position < b.position; });
    return myResult;
}

void ProductCheck::add(Rule rule, const CatalogueElement &element, const QString &text)
{
    const CatalogueRule &broken = catalogueRule(rule);
    if (!myDisabledRules.contains(broken.name))
        myResult.findings += { element.position(), broken.severity, text, broken.name, myNumber };
}

void ProductCheck::checkIds(const CatalogueElement &product)
{
    myResult.typeText = product.text("type"_L1);
    if (myResult.typeText.trimmed().isEmpty())
        add(Rule::TypeMissing, product, u"the product has no type"_s);
    else
        myResult.type = myProduct.type;

    const QStringView articleId = product.attribute("article_id"_L1);
    if (articleId.trimmed().isEmpty())
        add(Rule::ArticleIdMissing, product, u"the product has no article id"_s);
    else if (!myProduct.articleId.isValid())
        add(Rule::ArticleIdInvalid, product, u"the article id %1 is no whole number above 0"_s.arg(quoted(articleId)));
    else
        myResult.articleId = myProduct.articleId.id();

    if (product.hasAttribute("shipping_group"_L1) && intValue(product, "shipping_group"_L1).value_or(-1) < 0)
        add(Rule::ShippingGroupInvalid, product,
            u"the shipping group %1 is no whole number from 0"_s.arg(quoted(product.attribute("shipping_group"_L1))));
}

void ProductCheck::checkKeywords(const CatalogueElement &product)
{
    for (const QLatin1StringView name : keywordAttributesOfProducts()) {
        if (!product.hasAttribute(name))
            continue;
        const std::pair<QLatin1StringView, QString> key(name, product.text(name));
        if (!myKeywordFaults.contains(key))
            myKeywordFaults.insert(key, keywordFaults(name, key.second));
        for (const KeywordFault &fault : std::as_const(myKeywordFaults)[key]) {
            if (fault.isKnown)
                add(Rule::KeywordLegacy, product,
                    u"%1 is an alias in %2; the main keyword is %3"_s.arg(quoted(fault.piece), name,
                                                                          quoted(fault.betterKeyword)));
            else if (fault.piece.isEmpty())
                add(Rule::KeywordUnknown, product, u"there is an empty keyword in %1"_s.arg(name));
            else
                add(Rule::KeywordUnknown, product,
                    u"%1 is no keyword of %2"_s.arg(quoted(fault.piece), name)
                            + (fault.betterKeyword.isEmpty()
                                       ? QString()
                                       : u"; did you mean %1?"_s.arg(quoted(fault.betterKeyword))));
        }
    }
}

/// True where the attribute is missing, too.
bool ProductCheck::checkNumber(const CatalogueElement &element, QLatin1StringView name, bool isWhole)
{
    if (!element.hasAttribute(name)
        || (isWhole ? intValue(element, name).has_value() : doubleValue(element, name).has_value()))
        return true;
    add(Rule::NumberInvalid, element,
        u"%1 is %2, which is no %3"_s.arg(name, quoted(element.attribute(name)),
                                          isWhole ? u"whole number"_s : u"number"_s));
    return false;
}

/// True where the attribute is missing, too.
bool ProductCheck::checkBoolean(const CatalogueElement &element, QLatin1StringView name)
{
    if (!element.hasAttribute(name) || boolValue(element, name).has_value())
        return true;
    add(Rule::BooleanInvalid, element,
        u"%1 is %2, which is neither true nor false"_s.arg(name, quoted(element.attribute(name))));
    return false;
}

/// True where the attribute is missing, too.
bool ProductCheck::checkUnit(const CatalogueElement &element)
{
    const bool isKnown = !element.hasAttribute("units"_L1) || contains(UNITS, element.attribute("units"_L1));
    if (!isKnown)
        add(Rule::UnitUnknown, element,
            u"there is no unit %1; there are mm, cm, inch, in, pt, point and 0.1mm"_s.arg(
                    quoted(element.attribute("units"_L1))));
    return isKnown;
}

void ProductCheck::checkPageCounts(const CatalogueElement &product)
{
    bool isReadable = checkBoolean(product, "photo_box"_L1);
    for (const QLatin1StringView name : PAGE_NUMBERS)
        isReadable = checkNumber(product, name, true) && isReadable;
    myHasPageCounts = false;
    if (!isReadable)
        return;

    const RVPageCountOrganization &counts = myProduct.pageCounts;
    const int pieces = intValue(product, "pieces"_L1).value_or(1);
    if (pieces < 1)
        return add(Rule::PageCountsInvalid, product, u"there are %1 pieces"_s.arg(pieces));
    if (counts.minPages() > counts.maxPages())
        return add(
                Rule::PageCountsReversed, product,
                u"the lowest page count %1 is above the highest, %2"_s.arg(counts.minPages()).arg(counts.maxPages()));
    if (!counts.isValid() || counts.minPages() < 0 || counts.pageIncrement() < 0)
        return add(Rule::PageCountsInvalid, product, u"there are no valid page counts (%1)"_s.arg(counts.dump()));
    if (!counts.isConsistent())
        add(Rule::PageStepMissesHighest, product,
            u"steps of %1 from %2 pages end at %3 and never meet %4"_s.arg(counts.pageIncrement())
                    .arg(counts.minPages())
                    .arg(counts.pagesWithNExtraPackages(counts.numberOfPackages() - 1))
                    .arg(counts.maxPages()));
    myHasPageCounts = true;
}

void ProductCheck::checkSpine(const CatalogueElement &product)
{
    const CatalogueElement composition = product.firstChildElement("composition"_L1);
    const CatalogueElement spine = composition.firstChildElement("spine"_L1);
    const bool isBound = myProduct.pageBinding.matches(GLUE | LAYFLAT);
    const bool isUnitKnown = checkUnit(composition);
    if (!spine.isNull())
        checkSpineWidths(spine, isBound, isUnitKnown);
    else if (isBound)
        add(Rule::SpineMissing, composition.isNull() ? product : composition,
            u"the product is bound (%1), but has no spine in a composition"_s.arg(myProduct.pageBinding.encodeCSV()));
}

void ProductCheck::checkSpineWidths(const CatalogueElement &spine, bool isBound, bool isUnitKnown)
{
    bool isReadable = checkNumber(spine, "packages_per_block"_L1, true);
    bool hasWidth = false;
    QStringList negative;
    for (const QLatin1StringView name : SPINE_WIDTHS) {
        isReadable = checkNumber(spine, name, false) && isReadable;
        const double width = doubleValue(spine, name).value_or(0);
        hasWidth = hasWidth || width != 0;
        if (width < 0)
            negative += name;
    }
    const bool isNegative = negative.contains("base_width"_L1) || negative.contains("additional_width"_L1);
    if (intValue(spine, "packages_per_block"_L1).value_or(0) < 0)
        negative += u"packages_per_block"_s;

    const RVPageCountOrganization &counts = myProduct.pageCounts;
    if (isReadable && isBound && !hasWidth)
        add(Rule::SpineMissing, spine, u"the product is bound, but its spine has no width"_s);
    else if (negative.isEmpty())
        return;
    else if (isReadable && isUnitKnown && !isNegative && myHasPageCounts
             && !isTooNarrow(myProduct.spine, counts.minPages()) && isTooNarrow(myProduct.spine, counts.maxPages()))
        add(Rule::SpineFontTooSmall, spine,
            u"the spine shrinks, so that at %1 pages it is too narrow for the smallest font"_s.arg(counts.maxPages()));
    else
        add(Rule::SpineNegative, spine, u"%1 is below 0"_s.arg(negative.join(" and "_L1)));
}

void ProductCheck::checkOptions(const CatalogueElement &product)
{
    const CatalogueElement forms = formsOf(product);
    QHash<std::pair<QStringView, QStringView>, FilePosition> seen;
    forEachChild(forms, "form"_L1, [&](const CatalogueElement &form) {
        checkOption(form);
        const std::pair<QStringView, QStringView> option(form.attribute("key"_L1), form.attribute("value"_L1));
        if (option.first.isEmpty() || option.second.isEmpty())
            return;
        if (seen.contains(option))
            add(Rule::OptionDuplicate, form,
                u"the option %1 of %2 is already there %3"_s.arg(quoted(option.second), quoted(option.first),
                                                                 inLine(seen.value(option))));
        else
            seen.insert(option, form.position());
    });
    checkDefaults(forms);
}

void ProductCheck::checkOption(const CatalogueElement &form)
{
    const QString key = form.text("key"_L1);
    const QString value = form.text("value"_L1);
    if (key.isEmpty() || value.isEmpty())
        add(Rule::OptionIncomplete, form,
            u"the option has no %1"_s.arg(!key.isEmpty()            ? u"value"_s
                                                  : value.isEmpty() ? u"key and no value"_s
                                                                    : u"key"_s));
    else if ((key.contains(u';') || value.contains(u';'))
             && RVConfiguredArticleVariantList::createForProduction(RVConfiguredArticleVariant(key, value)).isEmpty())
        add(Rule::OptionCompositeMismatch, form,
            u"the keys %1 and the values %2 are not equally many"_s.arg(quoted(key), quoted(value)));

    const QString color = form.text("color"_L1);
    if (!color.isEmpty() && !QColor::fromString(color).isValid())
        add(Rule::OptionColorInvalid, form, u"%1 is no colour"_s.arg(quoted(color)));
    checkBoolean(form, "preselected"_L1);
    checkBoolean(form, "not_accountable"_L1);
    checkPriceClass(form, "price_class"_L1);
}

void ProductCheck::checkDefaults(const CatalogueElement &forms)
{
    std::vector<OptionKey> keys; // in the order of the file
    QHash<QStringView, std::size_t> places;
    bool hasPreselected = false;
    bool isCertain = true; // which options are preselected
    forEachChild(forms, "form"_L1, [&](const CatalogueElement &form) {
        const QStringView name = form.attribute("key"_L1);
        const auto preselected = boolValue(form, "preselected"_L1);
        if (preselected.has_value() ? *preselected && name.isEmpty() : form.hasAttribute("preselected"_L1))
            isCertain = false;
        if (name.isEmpty())
            return;
        if (!places.contains(name)) {
            places.insert(name, keys.size());
            keys.push_back({ form, CatalogueElement(), {}, false });
        }
        hasPreselected = hasPreselected || preselected.value_or(false);
        checkDefault(form, preselected.value_or(false), &keys[places.value(name)]);
    });
    for (const OptionKey &key : keys) {
        if (!isCertain || !key.preselected.isNull() || (!hasPreselected && key.values.size() < 2))
            continue;
        add(Rule::OptionDefaultMissing, key.first,
            u"no option of %1 is preselected, so "_s.arg(quoted(key.first.attribute("key"_L1)))
                    + (hasPreselected ? u"an order comes without any"_s : u"the first is taken"_s));
    }
}

// An option that stands there twice is a mistake of its own.
void ProductCheck::checkDefault(const CatalogueElement &form, bool isPreselected, OptionKey *key)
{
    const QStringView value = form.attribute("value"_L1);
    const bool isDuplicate = key->values.contains(value);
    key->values.insert(value);
    if (!isPreselected)
        return;
    if (key->preselected.isNull()) {
        key->preselected = form;
    } else if (!isDuplicate && !key->hasTwoDefaults) {
        key->hasTwoDefaults = true;
        add(Rule::OptionDefaultTwice, form,
            u"%1 is preselected for %2, but %3 %4 is so already"_s.arg(quoted(value), quoted(form.attribute("key"_L1)),
                                                                       quoted(key->preselected.attribute("value"_L1)),
                                                                       inLine(key->preselected.position())));
    }
}

void ProductCheck::checkBarcodes(const CatalogueElement &product)
{
    const CatalogueElement barcodes = product.firstChildElement("barcodes"_L1);
    const RVDistanceUnit unit(barcodes.text("units"_L1));
    const bool isUnitKnown = checkUnit(barcodes);
    std::vector<PlacedBarcode> placed;
    forEachChild(barcodes, "barcode"_L1, [&](const CatalogueElement &barcode) {
        bool isReadable = checkNumber(barcode, "pageNr"_L1, true);
        for (const QLatin1StringView name : BARCODE_LENGTHS)
            isReadable = checkNumber(barcode, name, false) && isReadable;
        if (!isReadable)
            return;
        QDomDocument document;
        const auto definition = RVBarcodeDefinition::createFromProductsXML(barcode.deepCopy(&document), unit);
        checkBarcodePage(barcode, definition.pageNr());
        if (definition.imageName().isEmpty())
            add(Rule::BarcodeInvalid, barcode, u"the barcode has no image"_s);
        else if (isUnitKnown)
            checkBarcodeArea({ barcode, definition.rect(), definition.pageNr() }, &placed);
    });
}

void ProductCheck::checkBarcodePage(const CatalogueElement &barcode, int page)
{
    const int highest = myProduct.pageCounts.maxPages();
    if (page < 0)
        add(Rule::BarcodePageImpossible, barcode, u"there is no page %1"_s.arg(page));
    else if (myHasPageCounts && page > highest)
        add(Rule::BarcodePageImpossible, barcode,
            u"there is no page %1; the product has at most %2"_s.arg(page).arg(highest));
}

void ProductCheck::checkBarcodeArea(const PlacedBarcode &barcode, std::vector<PlacedBarcode> *placed)
{
    const QRect &area = barcode.area;
    if (area.left() > area.right() || area.top() > area.bottom())
        return add(Rule::BarcodeInvalid, barcode.element, u"the barcode has no width or no height"_s);
    if (area.left() < 0 || area.top() < 0)
        return add(Rule::BarcodeOutsidePage, barcode.element,
                   u"the barcode begins %1 the page"_s.arg(area.left() < 0 ? u"left of"_s : u"above"_s));
    if (isBeyondPage(area))
        return add(Rule::BarcodeOutsidePage, barcode.element,
                   u"the barcode ends %1 mm from the left and %2 mm from the top, where there is no page"_s.arg(
                           QString::number((area.right() + 1.0) / 10), QString::number((area.bottom() + 1.0) / 10)));
    const auto other = std::find_if(placed->begin(), placed->end(), [&](const PlacedBarcode &each) {
        return each.page == barcode.page && overlap(each.area, area);
    });
    if (other != placed->end())
        add(Rule::BarcodeOverlap, barcode.element,
            u"the barcode overlaps the one %1"_s.arg(inLine(other->element.position())));
    placed->push_back(barcode);
}

// How large a page is, nobody says but its size class; and of the largest class hardly any page is too large.
bool ProductCheck::isBeyondPage(const QRect &area) const
{
    const RVSpaceMagnitude size = myProduct.spaceMagnitude;
    return area.right() > LONGEST_PAGE || area.bottom() > LONGEST_PAGE
            || (size.hasExactlyOneBit()
                && RVSpaceMagnitude::fromSquareCentimeters(leastPageArea(area)).value() > size.value());
}

void ProductCheck::checkPriceClass(const CatalogueElement &element, QLatin1StringView name)
{
    static const RVPriceClassSet known = knownPriceClasses();
    const RVPriceClass priceClass(element.text(name));
    if (!priceClass.isFree() && !known.contains(priceClass))
        add(Rule::PriceClassUnknown, element,
            u"the price class %1 belongs to no known group"_s.arg(quoted(priceClass.toString())));
}
