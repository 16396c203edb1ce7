#include "RVBarcodeCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVPageCountCheck_p.h"
#include "RVValueCheck_p.h"

#include <RVBarcodeDefinition.h>
#include <RVDistance.h>

#include <QLocale>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Barcodes are measured in tenths of a millimetre. No printer prints three metres.
constexpr double SQUARE_CENTIMETRE = 10000;
constexpr int LONGEST_PAGE = 30000;
/// Nothing is printed that is longer and slimmer, width by height.
constexpr double SLIMMEST = 0.1;
constexpr double WIDEST = 10;

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

/// The attribute that says how many pages there may be; the start tag where that is the default.
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

/// Of the size of a page nothing is known but its size class and its orientation.
struct RVBarcodeCheck::PageSize
{
    explicit PageSize(const RVCatalogueProduct &product)
        : magnitude(product.spaceMagnitude()),
          ratios(pageRatios(product.orientation()))
    { }

    /// True where no page is so large. Of the largest class hardly any page is too large, and the usual area of a class
    /// may belong to the next one.
    bool isBelow(const QRect &area) const
    {
        if (area.right() > LONGEST_PAGE || area.bottom() > LONGEST_PAGE)
            return true;
        const int least = leastPageArea(area, ratios);
        return magnitude.hasExactlyOneBit() && least > magnitude.normativeSize()
                && RVSpaceMagnitude::fromSquareCentimeters(least).value() > magnitude.value();
    }

    RVSpaceMagnitude magnitude;
    PageRatios ratios;
};

void RVBarcodeCheck::check(const RVCatalogueProduct &product)
{
    constexpr auto name = "barcode"_L1;
    const RVCatalogueElement barcodes = product.element().firstChildElement("barcodes"_L1);
    if (barcodes.isNull())
        return;
    const RVDistanceUnit unit(barcodes.attribute("units"_L1));
    const bool isUnitKnown = rvCheckUnit(barcodes, myReport);
    const PageSize pageSize(product);
    for (auto element = barcodes.firstChildElement(name); !element.isNull();
         element = element.nextSiblingElement(name)) {
        const std::optional<Barcode> barcode = read(element, unit);
        if (!barcode)
            continue;
        checkPage(*barcode);
        if (element.utf8("image"_L1).isEmpty() && element.hasAttribute("image"_L1))
            myReport->add(RVCatalogueRuleId::BarcodeInvalid, element, "image"_L1,
                          RVFindingText::tr("the barcode has no image; name a file, or leave out the attribute"));
        else if (isUnitKnown)
            checkArea(*barcode, pageSize);
    }
}

/// Nothing where a number cannot be read.
std::optional<RVBarcodeCheck::Barcode> RVBarcodeCheck::read(const RVCatalogueElement &element,
                                                            const RVDistanceUnit &unit)
{
    const auto page = rvCheckedInt(element, "pageNr"_L1, 0, myReport);
    const auto x = rvCheckedDouble(element, "position_x"_L1, 1, myReport);
    const auto y = rvCheckedDouble(element, "position_y"_L1, 1, myReport);
    const auto width = rvCheckedDouble(element, "width"_L1, 1, myReport);
    const auto height = rvCheckedDouble(element, "height"_L1, 1, myReport);
    if (!page || !x || !y || !width || !height)
        return std::nullopt;
    const auto definition = RVBarcodeDefinition::createFromLengths(RVDistance(*x, unit), RVDistance(*y, unit),
                                                                   RVDistance(*width, unit), RVDistance(*height, unit),
                                                                   *page, RVBarcodeDefinition::DEFAULT_IMAGE_NAME);
    return Barcode { element, definition.rect(), *page };
}

void RVBarcodeCheck::checkPage(const Barcode &barcode)
{
    const int highest = myPageCounts.counts.maxPages();
    if (barcode.page < 0)
        myReport->add(RVCatalogueRuleId::BarcodePageImpossible, barcode.element, "pageNr"_L1,
                      RVFindingText::tr("there is no page %1; write 0 or more").arg(barcode.page));
    else if (myPageCounts.areValid && barcode.page > highest)
        myReport->add(
                RVCatalogueRuleId::BarcodePageImpossible, barcode.element, "pageNr"_L1,
                RVFindingText::tr("there is no page %1; the product has at most %2").arg(barcode.page).arg(highest),
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
    checkOverlap(barcode);
    myPlaced += barcode;
}

/// False where the barcode leaves the page.
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
    if (!pageSize.isBelow(area))
        return true;
    const QString text = RVFindingText::tr("the barcode ends %1 mm from the left and %2 mm from the top, where there "
                                           "is no page; move it, or make it smaller");
    return addOutside(barcode, area.right() > area.bottom() ? "position_x"_L1 : "position_y"_L1,
                      text.arg(millimetres(area.right() + 1.0), millimetres(area.bottom() + 1.0)));
}

/// False, as the barcode leaves the page.
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
