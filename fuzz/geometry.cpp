// Eight numbers, which serve as margins, sizes, page counts and corners; then eight real numbers, which serve as
// widths of a spine and as places of barcodes; then two keyword lists and two names of images.
#include "Input.h"
#include "Properties.h"

#include <RVAngle.h>
#include <RVBarcodeDefinition.h>
#include <RVBarcodeDefinitionList.h>
#include <RVBleedMargin.h>
#include <RVDistance.h>
#include <RVMargins.h>
#include <RVOrientation.h>
#include <RVPageContext.h>
#include <RVPageSizeKey.h>
#include <RVPageSizeSpec.h>
#include <RVSpaceMagnitude.h>
#include <RVSpineConfig.h>

#include <QDomDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

struct Numbers
{
    int whole[8];
    qreal real[8];
};

Numbers readNumbers(Input *input)
{
    Numbers result;
    for (int &number : result.whole)
        number = input->integer();
    for (qreal &number : result.real)
        number = input->real();
    return result;
}

int saturated(qint64 value)
{
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    return int(qBound(lowest, value, highest));
}

void checkMargins(const Numbers &numbers)
{
    const auto [top, bottom, left, right, width, height, coverWidth, coverHeight] = numbers.whole;
    const RVMargins margins(top, bottom, left, right);
    checkCopies(margins, RVMargins(width, height));
    CHECK(margins == RVMargins(top, bottom, left, right));
    CHECK_EQUAL(margins.topLeft(), QPoint(left, top));
    CHECK_EQUAL(margins.bottomRight(), QPoint(right, bottom));
    CHECK_EQUAL(margins.totalMarginWH(), QSize(saturated(qint64(left) + right), saturated(qint64(top) + bottom)));
    CHECK_EQUAL(margins.allNull(), margins == RVMargins());
    CHECK(RVMargins(top, left) == RVMargins(top, top, left, left));

    const RVBleedMargin bleed(left, top);
    checkCopies(bleed, RVBleedMargin(right, bottom));
    CHECK_EQUAL(bleed.isNull(), bleed == RVBleedMargin(0, 0));

    RVPageSizeSpec spec(QSize(width, height), margins);
    checkCopies(spec, RVPageSizeSpec());
    CHECK_EQUAL(spec.slipcaseTranslationPoint(), QPointF());
    const QSize total = spec.totalSize();
    if (qAbs(qint64(left) + right) < std::numeric_limits<int>::max())
        CHECK_EQUAL(total.width(), saturated(qint64(width) + left + right));
    spec.setUsableSlipcaseCoverSize(QSize(coverWidth, coverHeight));
    CHECK(spec == RVPageSizeSpec(QSize(width, height), margins));
    CHECK_EQUAL(spec.totalSize(), total);
    CHECK_EQUAL(spec.slipcaseTranslationPoint().x(), 0.0);
    if (coverWidth < 0 || coverHeight < 0)
        CHECK_EQUAL(spec.slipcaseTranslationPoint(), QPointF());
}

void checkPages(const Numbers &numbers, const QString &types, const QString &alignments)
{
    const RVPageType type(types);
    const RVPageContext context(type, RVPageAlignment(alignments));
    const RVPageContext other(RVPageTypeEnum(numbers.whole[2]), RVPageAlignmentEnum(numbers.whole[3]));
    checkCopies(context, other);
    checkOrder(context, other);
    CHECK(context == other || context < other || other < context);
    CHECK_EQUAL(context.matchesWith(other), other.matchesWith(context));
    CHECK_EQUAL(context.matchesWith(context), !type.isNull() && !context.alignment().isNull());

    const RVPageSizeKey key(type, numbers.whole[0]);
    checkCopies(key, RVPageSizeKey(other.pageType(), numbers.whole[1]));
    CHECK(!(key < key));
    CHECK(!(key < RVPageSizeKey(other.pageType(), key.pageCount())));
    CHECK_EQUAL(key.isValid(), type.isValid() && key.pageCount() >= 0);
    CHECK_EQUAL(key.dump(), key.pageContext().dump() + u' ' + QString::number(key.pageCount()));
}

bool areFinite(const qreal (&numbers)[8])
{
    return std::all_of(std::begin(numbers), std::end(numbers), [](qreal number) { return std::isfinite(number); });
}

void checkSpine(const Numbers &numbers)
{
    const auto [lowest, highest, increment, packages, pages, more, code, length] = numbers.whole;
    const RVPageCountOrganization counts(RVIntRange(lowest, highest), increment);
    const RVDistance base(numbers.real[0]);
    const RVDistance block(numbers.real[1]);
    const RVDistance additional(numbers.real[2]);
    const RVSpineConfig spine(counts, packages, base, block, additional);
    checkCopies(spine, RVSpineConfig());
    CHECK_EQUAL(spine.isValid(), counts.isValid());
    if (areFinite(numbers.real))
        CHECK(spine == RVSpineConfig(counts, packages, base, block, additional));

    const unsigned few = unsigned(pages);
    const unsigned many = few > std::numeric_limits<unsigned>::max() - unsigned(more) ? few : few + unsigned(more);
    const int blocks = spine.additionalPagePackageBlocks(few);
    if (packages == 0 || increment == 0 || qint64(few) <= lowest)
        CHECK_EQUAL(blocks, 0);
    if (spine.isValid() && packages > 0 && increment >= 0) { // a fixed count may have a negative increment
        CHECK(blocks >= 0 && blocks <= spine.additionalPagePackageBlocks(many));
        if (areFinite(numbers.real) && numbers.real[1] >= 0)
            CHECK(!(spine.spineWidth(many) < spine.spineWidth(few)));
    }
    const qreal reduced = spine.coverReduceSize();
    CHECK(std::isnan(numbers.real[2]) ? reduced == 0 : qAbs(reduced) <= qAbs(numbers.real[2]));
    CHECK(spine.spineMaxFontHeigth(few, QString()) > 0);
}

void checkDistance(qreal number, RVDistanceUnit unit)
{
    const RVDistance distance(number, unit);
    // Smaller doubles have fewer digits than equality compares.
    if (std::isfinite(distance.value()) && (distance.value() == 0 || qAbs(distance.value()) > 1e-290))
        CHECK(RVDistance(distance.value(unit), unit) == distance);
    CHECK(!(distance < distance));
}

void checkShapes(const Numbers &numbers)
{
    const int length = numbers.whole[7];
    for (const RVOrientationEnum value : { ORIENTATION_PORTRAIT, ORIENTATION_LANDSCAPE, ORIENTATION_SQUARE }) {
        const int margin = RVOrientation(value).foldMargin(length);
        CHECK(length < 0 ? margin >= length && margin <= 0 : margin >= 0 && margin <= length);
    }
    const RVOrientation orientation(QSizeF(numbers.real[4], numbers.real[5]));
    CHECK(orientation.countBits() <= 1);
    CHECK(RVOrientation::createFromSize(QSizeF(numbers.real[4], numbers.real[5])) == orientation);
    if (areFinite(numbers.real) && numbers.real[4] > 0 && numbers.real[5] > 0)
        CHECK(orientation.hasExactlyOneBit());
    CHECK(RVOrientation::createFromPageTilt(numbers.real[6]).hasExactlyOneBit());
    CHECK(RVSpaceMagnitude::fromSquareCentimeters(length).countBits() <= 1);
    CHECK(RVSpaceMagnitude::estimateByAreaSizes(numbers.real[7]).countBits() <= 1);
}

RVBarcodeDefinition readBarcode(const Numbers &numbers, int first, const QString &image, int pageNr)
{
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("barcode"));
    int i = first;
    for (const char *name : { "position_x", "position_y", "width", "height" })
        element.setAttribute(QString::fromLatin1(name), QString::number(numbers.real[i++], 'g', 17));
    element.setAttribute(QStringLiteral("image"), image);
    element.setAttribute(QStringLiteral("pageNr"), pageNr);
    const RVDistanceUnit unit(numbers.whole[7]);
    const auto barcode = RVBarcodeDefinition::createFromProductsXML(element, unit);
    CHECK_EQUAL(barcode.imageName(), image);
    CHECK_EQUAL(barcode.pageNr(), pageNr);
    const auto list = RVBarcodeDefinitionList::createFromXTCI(element, unit);
    CHECK_EQUAL(list.size(), barcode.isValid() ? 1 : 0);
    CHECK(list.isEmpty() || list.first() == barcode);
    return barcode;
}

/// The second list has the rectangles of the first one.
void checkUpdate(RVBarcodeDefinitionList list, const RVBarcodeDefinitionList &update)
{
    const RVBarcodeDefinitionList before = list;
    list.updateDefinitions(list);
    CHECK(list == before);
    list.updateDefinitions(update);
    for (const RVBarcodeDefinition &element : list) {
        CHECK(list.findDefinition(element.rect()) == element);
        CHECK(list.barcodesOnPage(element.pageNr()).contains(element));
        CHECK(update.contains(element));
    }
    CHECK_EQUAL(list.size(), before.size());
    CHECK_EQUAL(list.occupiedRegion().isEmpty(), list.isEmpty());
}

void checkBarcodes(const Numbers &numbers, const QString &image, const QString &otherImage)
{
    const auto [left, top, right, bottom, page, otherPage, shift, unit] = numbers.whole;
    QRect rect;
    rect.setCoords(left, top, right, bottom);
    const RVBarcodeDefinition definition(rect, page, image);
    const RVBarcodeDefinition read = readBarcode(numbers, 0, otherImage, otherPage);
    const RVBarcodeDefinition other = readBarcode(numbers, 4, image, shift);
    checkCopies(definition, read);
    CHECK(!(definition < definition));
    CHECK_EQUAL(definition.isValid(), right >= left && bottom >= top && !image.isEmpty());

    RVBarcodeDefinitionList list;
    RVBarcodeDefinitionList update;
    for (const RVBarcodeDefinition &element :
         { definition, read, other, RVBarcodeDefinition(rect, page, otherImage) }) {
        if (!element.isValid())
            continue;
        if (!list.findDefinition(element.rect()).isValid())
            list += element;
        update += RVBarcodeDefinition(element.rect(), otherPage, element.imageName());
    }
    CHECK(!(list < list));
    checkUpdate(list, update);
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const Numbers numbers = readNumbers(&input);
    const QString first = input.text();
    const QString second = input.text();
    const QString image = input.text();
    checkMargins(numbers);
    checkPages(numbers, first, second);
    checkSpine(numbers);
    checkDistance(numbers.real[3], RVDistanceUnit(numbers.whole[6]));
    checkShapes(numbers);
    checkBarcodes(numbers, image, input.text());
    return 0;
}
