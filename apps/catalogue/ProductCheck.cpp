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
#include <QLocale>
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
constexpr double SQUARE_CENTIMETRE = 10000;
constexpr int LONGEST_PAGE = 30000;
constexpr qreal USABLE_PART_OF_SPINE = 0.85;

template<typename Names>
bool contains(const Names &names, QStringView name)
{
    return std::any_of(names.begin(), names.end(), [&](QLatin1StringView each) { return name == each; });
}

QString lineOf(const FilePosition &position)
{
    return QString::number(position.line);
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
    const RVFontCreator *fonts = RVFontCreator::instance();
    const QFontMetrics smallest(fonts->createFont(fonts->defaultFontFamily(), sizes.first()));
    const RVDistance width = spine.spineWidth(unsigned(qMax(0, pages))) - spine.additionalSpineWidth() * 2.0;
    return smallest.lineSpacing() > std::round(width.value() * USABLE_PART_OF_SPINE);
}

QString millimetres(double tenths)
{
    return QString::number(tenths / 10, 'f', QLocale::FloatingPointShortest);
}

bool overlap(const QRect &a, const QRect &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

/// The proportions, width by height, that pages of an orientation have.
struct PageRatios
{
    double least;
    double most;
};

PageRatios pageRatios(const RVOrientation &orientation)
{
    // Nothing is printed that is longer and slimmer.
    constexpr double slimmest = 0.1;
    constexpr double widest = 10;
    switch (orientation.value()) {
    case ORIENTATION_PORTRAIT:
    case ORIENTATION_PORTRAIT_SLIM:
        return { slimmest, 1 };
    case ORIENTATION_LANDSCAPE:
    case ORIENTATION_LANDSCAPE_SLIM:
        return { 1, widest };
    case ORIENTATION_SQUARE:
        return { 0.9, 1.1 };
    default:
        return { slimmest, widest };
    }
}

/// The area in cm² of the smallest page where the barcode fits, measured from its upper left corner.
int leastPageArea(const QRect &barcode, const PageRatios &ratios)
{
    const double height = qMax(barcode.bottom() + 1.0, (barcode.right() + 1.0) / ratios.most);
    const double width = qMax(barcode.right() + 1.0, height * ratios.least);
    return int(qMin(width * height / SQUARE_CENTIMETRE, double(std::numeric_limits<int>::max())));
}

CatalogueElement formsOf(const CatalogueElement &product)
{
    return product.firstChildElement("forms"_L1);
}

/// True where keys that are chosen together have not one value each.
bool isMismatch(const CatalogueElement &form)
{
    const QStringView key = form.attribute("key"_L1);
    const QStringView value = form.attribute("value"_L1);
    return (key.contains(u';') || value.contains(u';'))
            && RVConfiguredArticleVariantList::createForProduction(
                       RVConfiguredArticleVariant(key.toString(), value.toString()))
                       .isEmpty();
}

QString keywordText(const KeywordFault &fault, QLatin1StringView attribute)
{
    if (fault.isKnown)
        return FindingText::tr("%1 is an alias in %2; the main keyword is %3")
                .arg(quoted(fault.piece), attribute, quoted(fault.betterKeyword));
    if (fault.piece.isEmpty())
        return FindingText::tr("there is an empty keyword in %1").arg(attribute);
    if (fault.betterKeyword.isEmpty())
        return FindingText::tr("%1 is no keyword of %2").arg(quoted(fault.piece), attribute);
    if (fault.meaning.isEmpty())
        return FindingText::tr("%1 is no keyword of %2; did you mean %3?")
                .arg(quoted(fault.piece), attribute, quoted(fault.betterKeyword));
    return FindingText::tr("%1 is no keyword of %2; did you mean %3, that is %4?")
            .arg(quoted(fault.piece), attribute, quoted(fault.betterKeyword), quoted(fault.meaning));
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
    checkParts(product);
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
        add(Rule::TypeMissing, product, FindingText::tr("the product has no type"));
    else
        myResult.type = myProduct.type;

    const QStringView articleId = product.attribute("article_id"_L1);
    if (articleId.trimmed().isEmpty())
        add(Rule::ArticleIdMissing, product, FindingText::tr("the product has no article id"));
    else if (!myProduct.articleId.isValid())
        add(Rule::ArticleIdInvalid, product,
            FindingText::tr("the article id %1 is no whole number above 0").arg(quoted(articleId)));
    else
        myResult.articleId = myProduct.articleId.id();

    const QStringView shippingGroup = product.attribute("shipping_group"_L1);
    if (!shippingGroup.isNull() && intValue(product, "shipping_group"_L1).value_or(-1) == -1)
        add(Rule::ShippingGroupInvalid, product,
            FindingText::tr("the shipping group %1 is none").arg(quoted(shippingGroup)));
}

void ProductCheck::checkParts(const CatalogueElement &product)
{
    forEachChild(product, "product"_L1, [&](const CatalogueElement &inner) {
        add(Rule::ElementIgnored, inner, FindingText::tr("a product inside a product is not read"));
    });
    for (const QLatin1StringView name : { "barcodes"_L1, "composition"_L1, "forms"_L1 })
        checkFirst(product.firstChildElement(name), name);
    checkFirst(product.firstChildElement("composition"_L1).firstChildElement("spine"_L1), "spine"_L1);
}

/// Finds all the others of that name.
void ProductCheck::checkFirst(const CatalogueElement &first, QLatin1StringView name)
{
    for (CatalogueElement other = first.nextSiblingElement(name); !other.isNull();
         other = other.nextSiblingElement(name))
        add(Rule::ElementIgnored, other,
            FindingText::tr("only the first %1 is read, the one in line %2").arg(name, lineOf(first.position())));
}

void ProductCheck::checkKeywords(const CatalogueElement &product)
{
    for (const QLatin1StringView name : keywordAttributesOfProducts()) {
        if (!product.hasAttribute(name))
            continue;
        const std::pair<QLatin1StringView, QString> key(name, product.text(name));
        if (!myKeywordFaults.contains(key))
            myKeywordFaults.insert(key, keywordFaults(name, key.second));
        for (const KeywordFault &fault : std::as_const(myKeywordFaults)[key])
            add(fault.isKnown ? Rule::KeywordLegacy : Rule::KeywordUnknown, product, keywordText(fault, name));
    }
}

/// True where the attribute is missing, too.
bool ProductCheck::checkNumber(const CatalogueElement &element, QLatin1StringView name, bool isWhole)
{
    if (!element.hasAttribute(name)
        || (isWhole ? intValue(element, name).has_value() : doubleValue(element, name).has_value()))
        return true;
    const QString text = isWhole ? FindingText::tr("%1 is %2, which is no whole number")
                                 : FindingText::tr("%1 is %2, which is no number");
    add(Rule::NumberInvalid, element, text.arg(name, quoted(element.attribute(name))));
    return false;
}

/// True where the attribute is missing, too.
bool ProductCheck::checkBoolean(const CatalogueElement &element, QLatin1StringView name)
{
    if (!element.hasAttribute(name) || boolValue(element, name).has_value())
        return true;
    add(Rule::BooleanInvalid, element,
        FindingText::tr("%1 is %2, which is neither true nor false").arg(name, quoted(element.attribute(name))));
    return false;
}

/// True where the attribute is missing, too.
bool ProductCheck::checkUnit(const CatalogueElement &element)
{
    const bool isKnown = !element.hasAttribute("units"_L1) || contains(UNITS, element.attribute("units"_L1));
    if (!isKnown)
        add(Rule::UnitUnknown, element,
            FindingText::tr("there is no unit %1; there are mm, cm, inch, in, pt, point and 0.1mm")
                    .arg(quoted(element.attribute("units"_L1))));
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
        return add(Rule::PageCountsInvalid, product, FindingText::tr("there are %1 pieces").arg(pieces));
    if (counts.minPages() > counts.maxPages())
        return add(Rule::PageCountsReversed, product,
                   FindingText::tr("the lowest page count %1 is above the highest, %2")
                           .arg(counts.minPages())
                           .arg(counts.maxPages()));
    if (counts.minPages() < counts.maxPages() && counts.pageIncrement() == 0)
        return add(Rule::PageCountsInvalid, product,
                   FindingText::tr("there is no step (page_step) that leads from %1 to %2 pages")
                           .arg(counts.minPages())
                           .arg(counts.maxPages()));
    if (!counts.isValid() || counts.minPages() < 0 || counts.pageIncrement() < 0)
        return add(Rule::PageCountsInvalid, product,
                   FindingText::tr("there are no valid page counts (%1)").arg(counts.dump()));
    if (!counts.isConsistent())
        add(Rule::PageStepMissesHighest, product,
            FindingText::tr("steps of %1 from %2 pages end at %3 and never meet %4")
                    .arg(counts.pageIncrement())
                    .arg(counts.minPages())
                    .arg(counts.pageCounts().last())
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
            FindingText::tr("the product is bound (%1), but has no spine in a composition")
                    .arg(myProduct.pageBinding.encodeCSV()));
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
    const auto hasWidthAt = [this](int pages) {
        return qIsFinite(myProduct.spine.spineWidth(unsigned(qMax(0, pages))).value());
    };
    if (isReadable && !(hasWidthAt(counts.minPages()) && hasWidthAt(counts.maxPages())))
        add(Rule::NumberInvalid, spine, FindingText::tr("the widths of the spine are too large for a number"));
    else if (isReadable && isBound && !hasWidth)
        add(Rule::SpineMissing, spine, FindingText::tr("the product is bound, but its spine has no width"));
    else if (negative.isEmpty())
        return;
    else if (isReadable && isUnitKnown && !isNegative && myHasPageCounts
             && !isTooNarrow(myProduct.spine, counts.minPages()) && isTooNarrow(myProduct.spine, counts.maxPages()))
        add(Rule::SpineFontTooSmall, spine,
            FindingText::tr("the spine shrinks, so that at %1 pages it is too narrow for the smallest font")
                    .arg(counts.maxPages()));
    else
        add(Rule::SpineNegative, spine,
            (negative.size() == 1 ? FindingText::tr("%1 is below 0") : FindingText::tr("%1 are below 0"))
                    .arg(negative.join(", "_L1)));
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
                FindingText::tr("the option %1 of %2 is already there in line %3")
                        .arg(quoted(option.second), quoted(option.first), lineOf(seen.value(option))));
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
            !key.isEmpty()            ? FindingText::tr("the option has no value")
                    : value.isEmpty() ? FindingText::tr("the option has no key and no value")
                                      : FindingText::tr("the option has no key"));
    else if (isMismatch(form))
        add(Rule::OptionCompositeMismatch, form,
            FindingText::tr("the keys %1 and the values %2 are not equally many").arg(quoted(key), quoted(value)));

    const QString color = form.text("color"_L1);
    if (!color.isEmpty() && !QColor::fromString(color).isValid())
        add(Rule::OptionColorInvalid, form, FindingText::tr("%1 is no colour").arg(quoted(color)));
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
    QSet<qsizetype> mismatches; // how many semicolons the values of those have that are preselected
    forEachChild(forms, "form"_L1, [&](const CatalogueElement &form) {
        const QStringView name = form.attribute("key"_L1);
        const auto preselected = boolValue(form, "preselected"_L1);
        const QStringView value = form.attribute("value"_L1);
        const bool hasMismatch = !value.isEmpty() && isMismatch(form);
        const bool isOption = !value.isEmpty() && !hasMismatch;
        if (hasMismatch && preselected.value_or(false))
            mismatches.insert(value.count(u';'));
        if (preselected.has_value() ? *preselected && name.isEmpty() : form.hasAttribute("preselected"_L1))
            isCertain = false;
        if (name.isEmpty() || !(isOption || preselected.value_or(false)))
            return;
        if (!places.contains(name)) {
            places.insert(name, keys.size());
            keys.push_back({ form, CatalogueElement(), {}, false });
        }
        hasPreselected = hasPreselected || preselected.value_or(false);
        checkDefault(form, preselected.value_or(false), &keys[places.value(name)]);
    });
    for (const OptionKey &key : keys) {
        // One with as many values as these keys may be meant for them, with a mistake in its own keys.
        const bool mayBePreselected = mismatches.contains(key.first.attribute("key"_L1).count(u';'));
        if (!isCertain || mayBePreselected || !key.preselected.isNull() || (!hasPreselected && key.values.size() < 2))
            continue;
        const QString text = hasPreselected
                ? FindingText::tr("no option of %1 is preselected, so an order comes without any")
                : FindingText::tr("no option of %1 is preselected, so the first is taken");
        add(Rule::OptionDefaultMissing, key.first, text.arg(quoted(key.first.attribute("key"_L1))));
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
            FindingText::tr("%1 is preselected for %2, but %3 in line %4 is so already")
                    .arg(quoted(value), quoted(form.attribute("key"_L1)),
                         quoted(key->preselected.attribute("value"_L1)), lineOf(key->preselected.position())));
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
            add(Rule::BarcodeInvalid, barcode, FindingText::tr("the barcode has no image"));
        else if (isUnitKnown)
            checkBarcodeArea({ barcode, definition.rect(), definition.pageNr() }, &placed);
    });
}

void ProductCheck::checkBarcodePage(const CatalogueElement &barcode, int page)
{
    const int highest = myProduct.pageCounts.maxPages();
    if (page < 0)
        add(Rule::BarcodePageImpossible, barcode, FindingText::tr("there is no page %1").arg(page));
    else if (myHasPageCounts && page > highest)
        add(Rule::BarcodePageImpossible, barcode,
            FindingText::tr("there is no page %1; the product has at most %2").arg(page).arg(highest));
}

void ProductCheck::checkBarcodeArea(const PlacedBarcode &barcode, std::vector<PlacedBarcode> *placed)
{
    const QRect &area = barcode.area;
    if (area.left() > area.right() || area.top() > area.bottom())
        return add(Rule::BarcodeInvalid, barcode.element, FindingText::tr("the barcode has no width or no height"));
    if (area.left() < 0 || area.top() < 0)
        return add(Rule::BarcodeOutsidePage, barcode.element,
                   area.left() < 0 ? FindingText::tr("the barcode begins left of the page")
                                   : FindingText::tr("the barcode begins above the page"));
    if (isBeyondPage(area))
        return add(
                Rule::BarcodeOutsidePage, barcode.element,
                FindingText::tr("the barcode ends %1 mm from the left and %2 mm from the top, where there is no page")
                        .arg(millimetres(area.right() + 1.0), millimetres(area.bottom() + 1.0)));
    const auto other = std::find_if(placed->begin(), placed->end(), [&](const PlacedBarcode &each) {
        return each.page == barcode.page && overlap(each.area, area);
    });
    if (other != placed->end())
        add(Rule::BarcodeOverlap, barcode.element,
            FindingText::tr("the barcode overlaps the one in line %1").arg(lineOf(other->element.position())));
    placed->push_back(barcode);
}

// How large a page is, nobody says but its size class and its orientation; and of the largest class hardly any page is
// too large. The usual area of a class may belong to the next one.
bool ProductCheck::isBeyondPage(const QRect &area) const
{
    const RVSpaceMagnitude size = myProduct.spaceMagnitude;
    if (area.right() > LONGEST_PAGE || area.bottom() > LONGEST_PAGE)
        return true;
    const int least = leastPageArea(area, pageRatios(myProduct.orientation));
    return size.hasExactlyOneBit() && least > size.normativeSize()
            && RVSpaceMagnitude::fromSquareCentimeters(least).value() > size.value();
}

void ProductCheck::checkPriceClass(const CatalogueElement &element, QLatin1StringView name)
{
    static const RVPriceClassSet known = knownPriceClasses();
    const RVPriceClass priceClass(element.text(name));
    if (!priceClass.isFree() && !known.contains(priceClass))
        add(Rule::PriceClassUnknown, element,
            FindingText::tr("the price class %1 belongs to no known group").arg(quoted(priceClass.toString())));
}
