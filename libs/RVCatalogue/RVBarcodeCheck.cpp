#include "RVBarcodeCheck_p.h"

#include "RVCatalogueCheck.h"
#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVPageCountCheck_p.h"
#include "RVValueCheck_p.h"

#include <RVBarcodeDefinition.h>
#include <RVDistance.h>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Barcodes are measured in tenths of a millimetre. The longest page has three metres, because no press prints longer
/// ones.
constexpr double TENTHS_PER_MILLIMETRE = 10;
constexpr double SQUARE_CENTIMETRE = 10000;
constexpr int LONGEST_PAGE = 30000;
/// The slimmest and the widest page that is printed, width by height.
constexpr double SLIMMEST = 0.1;
constexpr double WIDEST = 10;
/// A missing extent is a mistake already, so that side of the barcode is taken as this thin, in millimetres.
constexpr double THINNEST = 0.1;
constexpr auto PAGE = "pageNr"_L1;

/// The proportions, width by height, that pages of an orientation have.
struct PageRatios
{
    double least;
    double most;
};

PageRatios pageRatios(const RVOrientation &orientation)
{
    switch (orientation.value()) {
    case ORIENTATION_PORTRAIT:
    case ORIENTATION_PORTRAIT_SLIM:
        return { SLIMMEST, 1 };
    case ORIENTATION_LANDSCAPE:
    case ORIENTATION_LANDSCAPE_SLIM:
        return { 1, WIDEST };
    case ORIENTATION_SQUARE:
        return { 0.9, 1.1 };
    default:
        return { SLIMMEST, WIDEST };
    }
}

struct OrientationRatios
{
    RVOrientationEnum orientation;
    PageRatios ratios;
};

/// The proportions by which RVOrientation distinguishes orientations.
constexpr OrientationRatios USUAL_RATIOS[] = {
    { ORIENTATION_PORTRAIT, { 0.5, 0.9 } },        { ORIENTATION_LANDSCAPE, { 1.1, 2 } },
    { ORIENTATION_SQUARE, { 0.9, 1.1 } },          { ORIENTATION_PORTRAIT_SLIM, { SLIMMEST, 0.5 } },
    { ORIENTATION_LANDSCAPE_SLIM, { 2, WIDEST } },
};

/// The proportions from the slimmest to the widest of all orientations of a product; none if it has no orientation.
std::optional<PageRatios> usualRatios(const RVOrientation &orientation)
{
    std::optional<PageRatios> result;
    for (const OrientationRatios &row : USUAL_RATIOS) {
        if (!orientation.matches(row.orientation))
            continue;
        const PageRatios others = result.value_or(row.ratios);
        result = { qMin(others.least, row.ratios.least), qMax(others.most, row.ratios.most) };
    }
    return result;
}

/// The area in cm² of the smallest page where the barcode fits, measured from its upper left corner.
int leastPageArea(const QRect &barcode, const PageRatios &ratios)
{
    const double height = qMax(barcode.bottom() + 1.0, (barcode.right() + 1.0) / ratios.most);
    const double width = qMax(barcode.right() + 1.0, height * ratios.least);
    return int(qMin(width * height / SQUARE_CENTIMETRE, double(std::numeric_limits<int>::max())));
}

QString millimetres(double tenths)
{
    return QString::number(tenths / 10, 'f', QLocale::FloatingPointShortest);
}

/// The attribute that sets the highest page count; the start tag if that is the default.
RVRelatedPlace placeOfHighest(const RVCatalogueElement &product)
{
    return rvPlaceOf(product, product.hasAttribute("max_pages"_L1) ? "max_pages"_L1 : "pages"_L1,
                     RVFindingText::tr("the highest page count"));
}

bool overlap(const QRect &a, const QRect &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

}

/// The page of a product. Only its size class and its orientation are known, unless the configuration has its size.
struct RVBarcodeCheck::PageSize
{
    PageSize(const RVCatalogueProduct &product, const RVCatalogueCheck &check)
        : magnitude(product.spaceMagnitude()),
          ratios(pageRatios(product.orientation())),
          usual(usualRatios(product.orientation())),
          exact(check.pageSize(product.type()))
    { }

    /// True if no page is so large. Pages of the largest class have hardly any limit, and the usual area of a class may
    /// belong to the next one.
    bool isBelow(const QRect &area) const
    {
        return area.right() >= LONGEST_PAGE || area.bottom() >= LONGEST_PAGE || isAboveClass(area, ratios);
    }
    /// True if no page with the proportions of its orientation is so large.
    bool isBelowUsual(const QRect &area) const { return usual && isAboveClass(area, *usual); }
    /// The attribute that is mended first if the barcode is outside.
    QLatin1StringView wrongSide(const QRect &area) const
    {
        const bool isWide = area.right() / std::sqrt(usual->most) > area.bottom() * std::sqrt(usual->least);
        return isWide ? "position_x"_L1 : "position_y"_L1;
    }
    /// The same for a page of known size.
    std::optional<QLatin1StringView> sideBeyondExact(const QRect &area) const
    {
        const double right = area.right() + 1 - exact.width() * TENTHS_PER_MILLIMETRE;
        const double bottom = area.bottom() + 1 - exact.height() * TENTHS_PER_MILLIMETRE;
        if (right <= 0 && bottom <= 0)
            return std::nullopt;
        return right > bottom ? "position_x"_L1 : "position_y"_L1;
    }

    bool isAboveClass(const QRect &area, const PageRatios &proportions) const
    {
        const int least = leastPageArea(area, proportions);
        return magnitude.hasExactlyOneBit() && least > magnitude.normativeSize()
                && RVSpaceMagnitude::fromSquareCentimeters(least).normativeSize() > magnitude.normativeSize();
    }

    RVSpaceMagnitude magnitude;
    PageRatios ratios;
    std::optional<PageRatios> usual;
    QSizeF exact; // in millimetres; invalid if it is unknown
};

void RVBarcodeCheck::check(const RVCatalogueProduct &product)
{
    constexpr auto name = "barcode"_L1;
    const RVCatalogueElement barcodes = product.element().firstChildElement("barcodes"_L1);
    if (barcodes.isNull())
        return;
    const RVDistanceUnit unit(barcodes.attribute("units"_L1));
    const bool isUnitKnown = rvCheckUnit(barcodes, myReport);
    const PageSize pageSize(product, myReport->check());
    for (auto element = barcodes.firstChildElement(name); !element.isNull();
         element = element.nextSiblingElement(name)) {
        checkMissing(element);
        const std::optional<int> page = rvCheckedInt(element, PAGE, 0, myReport);
        if (page)
            checkPage(element, *page);
        const std::optional<QRect> area = readArea(element, unit);
        if (element.utf8("image"_L1).isEmpty() && element.hasAttribute("image"_L1))
            myReport->add(RVCatalogueRuleId::BarcodeInvalid, element, "image"_L1,
                          RVFindingText::tr("the barcode has no image; name a file, or leave out the attribute"));
        else if (isUnitKnown && area)
            checkArea({ element, *area, page }, pageSize);
    }
}

/// Finds attributes that a barcode needs, though they have defaults.
void RVBarcodeCheck::checkMissing(const RVCatalogueElement &element)
{
    const auto isMissing = [&](QLatin1StringView name) {
        return !element.hasAttribute(name) && !myReport->isMeant(element, name);
    };
    QStringList missing;
    for (const QLatin1StringView name : { "width"_L1, "height"_L1 }) {
        if (isMissing(name))
            missing += name;
    }
    if (!missing.isEmpty())
        myReport->add(RVCatalogueRuleId::BarcodeSizeMissing, element,
                      missing.size() == 1
                              ? RVFindingText::tr("the barcode has no %1, so it takes 1 unit; write how large it is")
                                        .arg(missing.first())
                              : RVFindingText::tr("the barcode has no width and no height, so it takes 1 unit each; "
                                                  "write how large it is"));
    if (isMissing(PAGE))
        myReport->add(RVCatalogueRuleId::BarcodePageMissing, element, PAGE,
                      RVFindingText::tr("the barcode has no page number (pageNr), so it stands on page 0; "
                                        "write the page that it is on"));
}

/// Reads the place of a barcode on its page; nothing if a length cannot be read.
std::optional<QRect> RVBarcodeCheck::readArea(const RVCatalogueElement &element, const RVDistanceUnit &unit)
{
    const auto x = rvCheckedDouble(element, "position_x"_L1, 1, myReport);
    const auto y = rvCheckedDouble(element, "position_y"_L1, 1, myReport);
    const auto width = rvCheckedDouble(element, "width"_L1, THINNEST, myReport);
    const auto height = rvCheckedDouble(element, "height"_L1, THINNEST, myReport);
    if (!x || !y || !width || !height)
        return std::nullopt;
    const auto extent = [&](QLatin1StringView name, double length) {
        return RVDistance(length, element.hasAttribute(name) ? unit : RVDistanceUnit(DISTANCE_UNIT_MILLIMETRE));
    };
    const auto definition = RVBarcodeDefinition::createFromLengths(
            RVDistance(*x, unit), RVDistance(*y, unit), extent("width"_L1, *width), extent("height"_L1, *height), 0,
            RVBarcodeDefinition::DEFAULT_IMAGE_NAME);
    return definition.rect();
}

void RVBarcodeCheck::checkPage(const RVCatalogueElement &element, int page)
{
    const int highest = myPageCounts.counts.maxPages();
    if (page < 0)
        myReport->add(RVCatalogueRuleId::BarcodePageImpossible, element, PAGE,
                      RVFindingText::tr("there is no page %1; write 0 or more").arg(page));
    else if (myPageCounts.areValid && page > highest)
        myReport->add(RVCatalogueRuleId::BarcodePageImpossible, element, PAGE,
                      RVFindingText::tr("there is no page %1; the product has at most %2, so write that or less")
                              .arg(page)
                              .arg(highest),
                      { { placeOfHighest(myReport->product().element()) } });
}

void RVBarcodeCheck::checkArea(const Barcode &barcode, const PageSize &pageSize)
{
    const QRect &area = barcode.area;
    const bool hasWidth = area.left() <= area.right();
    if (!hasWidth || area.top() > area.bottom())
        return myReport->add(RVCatalogueRuleId::BarcodeInvalid, barcode.element, hasWidth ? "height"_L1 : "width"_L1,
                             RVFindingText::tr("the barcode has no width or no height; write both above 0"));
    if (!checkEdges(barcode, pageSize))
        return;
    // A page that is missing or cannot be read is a mistake already.
    if (!barcode.page || !barcode.element.hasAttribute(PAGE))
        return;
    checkOverlap(barcode);
    myPlaced += barcode;
}

/// False if the barcode leaves the page.
bool RVBarcodeCheck::checkEdges(const Barcode &barcode, const PageSize &pageSize)
{
    const QRect &area = barcode.area;
    if (area.left() < 0)
        return addOutside(barcode, "position_x"_L1,
                          RVFindingText::tr("the barcode begins left of the page; write a position_x of 0 or more"));
    if (area.top() < 0)
        return addOutside(
                barcode, "position_y"_L1,
                RVFindingText::tr("the barcode begins above the page; write a position_y of at least its height"));
    if (pageSize.exact.isValid())
        return checkExactPage(barcode, pageSize);
    const bool isOffUsual = pageSize.isBelowUsual(area);
    if (!pageSize.isBelow(area) && !isOffUsual)
        return true;
    const QString right = millimetres(area.right() + 1.0);
    const QString bottom = millimetres(area.bottom() + 1.0);
    if (pageSize.isBelow(area))
        return addOutside(barcode, area.right() > area.bottom() ? "position_x"_L1 : "position_y"_L1,
                          RVFindingText::tr("the barcode ends %1 mm from the left and %2 mm from the top, where there "
                                            "is no page; move it, or make it smaller")
                                  .arg(right, bottom));
    myReport->add(RVCatalogueRuleId::BarcodeOffUsualPage, barcode.element, pageSize.wrongSide(area),
                  RVFindingText::tr("the barcode ends %1 mm from the left and %2 mm from the top, but no page of this "
                                    "size class and orientation is so large; move it, or make it smaller")
                          .arg(right, bottom));
    return false;
}

/// False if the barcode leaves a page of known size.
bool RVBarcodeCheck::checkExactPage(const Barcode &barcode, const PageSize &pageSize)
{
    const std::optional<QLatin1StringView> side = pageSize.sideBeyondExact(barcode.area);
    if (!side)
        return true;
    const QSizeF &page = pageSize.exact;
    return addOutside(
            barcode, *side,
            RVFindingText::tr(
                    "the barcode ends %1 mm from the left and %2 mm from the top, but the page has %3 by %4 mm; "
                    "move it, or make it smaller")
                    .arg(millimetres(barcode.area.right() + 1.0), millimetres(barcode.area.bottom() + 1.0),
                         millimetres(page.width() * TENTHS_PER_MILLIMETRE),
                         millimetres(page.height() * TENTHS_PER_MILLIMETRE)));
}

/// Reports a barcode that leaves the page, and returns false.
bool RVBarcodeCheck::addOutside(const Barcode &barcode, QLatin1StringView attribute, const QString &text)
{
    myReport->add(RVCatalogueRuleId::BarcodeOutsidePage, barcode.element, attribute, text);
    return false;
}

void RVBarcodeCheck::checkOverlap(const Barcode &barcode)
{
    const Barcode *other = std::find_if(myPlaced.begin(), myPlaced.end(), [&](const Barcode &each) {
        return each.page == barcode.page && overlap(each.area, barcode.area);
    });
    if (other != myPlaced.end())
        myReport->add(RVCatalogueRuleId::BarcodeOverlap, barcode.element,
                      RVFindingText::tr("the barcode overlaps the one in line %1; move one of them")
                              .arg(rvLineOf(other->element)),
                      { { rvPlaceOf(other->element, RVFindingText::tr("the other barcode")) } });
}
