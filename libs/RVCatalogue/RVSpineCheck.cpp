#include "RVSpineCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVCatalogueValues_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVPageCountCheck_p.h"
#include "RVValueCheck_p.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// The widest spine in millimetres. Industrial perfect binders make the thickest books, and take blocks of at most
/// about this width.
constexpr qreal WIDEST_SPINE = 80;

unsigned pageCount(int pages)
{
    return unsigned(qMax(0, pages));
}

bool hasValue(const RVCatalogueElement &spine, QLatin1StringView name)
{
    return rvDoubleValue(spine, name).value_or(0) != 0;
}

/// The attribute that adds most to the width of a spine.
QLatin1StringView widestPart(const RVCatalogueElement &spine, int blocks)
{
    struct Part
    {
        QLatin1StringView name;
        int count;
    };
    const Part parts[] = { { "base_width"_L1, 1 }, { "block_width"_L1, blocks }, { "additional_width"_L1, 2 } };
    const auto width = [&spine](const Part &part) { return rvDoubleValue(spine, part.name).value_or(0) * part.count; };
    return std::max_element(std::begin(parts), std::end(parts),
                            [&width](const Part &a, const Part &b) { return width(a) < width(b); })
            ->name;
}

RVRelatedPlace placeOfBinding(const RVCatalogueElement &product)
{
    return rvPlaceOf(product, "page_binding"_L1, RVFindingText::tr("the binding"));
}

}

struct RVSpineCheck::Spine
{
    RVCatalogueElement element;
    RVSpineConfig config;
    bool isBound = false; // by a binding that needs a spine
    bool isUnitKnown = true;
    bool isReadable = true;
    bool hasWidth = false;
    QStringList negative; // the names of the attributes

    /// Notes if the number cannot be read, or is negative.
    template<typename T>
    void note(QLatin1StringView name, std::optional<T> number)
    {
        if (!number)
            isReadable = false;
        else if (*number < 0)
            negative += name;
    }
};

void RVSpineCheck::check(const RVCatalogueProduct &product)
{
    const RVCatalogueElement composition = product.element().firstChildElement("composition"_L1);
    const RVPageBinding binding = product.pageBinding();
    Spine spine;
    spine.element = composition.firstChildElement("spine"_L1);
    spine.isBound = binding.matches(GLUE | LAYFLAT);
    spine.isUnitKnown = rvCheckUnit(composition, myReport);
    if (!spine.element.isNull()) {
        spine.config = product.spine();
        readWidths(&spine);
        checkWidths(spine);
    } else if (spine.isBound && !myReport->isMeant("composition"_L1) && !myReport->isMeant("spine"_L1)) {
        myReport->add(RVCatalogueRuleId::SpineMissing, composition.isNull() ? product.element() : composition,
                      RVFindingText::tr(
                              "the product is bound (%1), but has no spine in a composition; add one with its widths")
                              .arg(binding.encodeCSV()),
                      { { placeOfBinding(myReport->product().element()) } });
    }
}

void RVSpineCheck::readWidths(Spine *spine)
{
    for (const QLatin1StringView name : { "base_width"_L1, "block_width"_L1, "additional_width"_L1 }) {
        const std::optional<double> width = rvCheckedDouble(spine->element, name, 0, myReport);
        spine->note(name, width);
        spine->hasWidth = spine->hasWidth || width.value_or(0) != 0;
    }
    constexpr auto packages = "packages_per_block"_L1;
    spine->note(packages, rvCheckedInt(spine->element, packages, 0, myReport));
}

void RVSpineCheck::checkWidths(const Spine &spine)
{
    if (spine.isReadable && !isFinite(spine))
        return myReport->add(
                RVCatalogueRuleId::NumberInvalid, spine.element,
                RVFindingText::tr("the widths of the spine are too large for a number; write smaller ones"));
    if (spine.isReadable && spine.isBound && !spine.hasWidth)
        return myReport->add(RVCatalogueRuleId::SpineMissing, spine.element,
                             RVFindingText::tr("the product is bound, but its spine has no width; write a base_width"),
                             { { placeOfBinding(myReport->product().element()) } });
    if (!spine.negative.isEmpty())
        return addNegative(spine);
    checkParts(spine);
    checkWidest(spine);
}

/// Finds widths that have no effect without another one.
void RVSpineCheck::checkParts(const Spine &spine)
{
    constexpr auto base = "base_width"_L1;
    constexpr auto packages = "packages_per_block"_L1;
    if (spine.hasWidth && !spine.element.hasAttribute(base))
        myReport->add(RVCatalogueRuleId::SpineBaseMissing, spine.element, base,
                      RVFindingText::tr("the spine has other widths, but no base_width; write one, or 0 for none"));
    if (hasValue(spine.element, "block_width"_L1) && !spine.element.hasAttribute(packages))
        myReport->add(RVCatalogueRuleId::SpinePackagesMissing, spine.element, packages,
                      RVFindingText::tr("the spine has a block_width, but no packages_per_block, so it never grows; "
                                        "write how many packages make a block"));
}

void RVSpineCheck::checkWidest(const Spine &spine)
{
    if (!spine.isReadable || !spine.isUnitKnown || !myPageCounts.areValid)
        return;
    const int pages = myPageCounts.counts.maxPages();
    const qreal width = spine.config.spineWidth(pageCount(pages)).value(DISTANCE_UNIT_MILLIMETRE);
    if (width <= WIDEST_SPINE)
        return;
    const int blocks = spine.config.additionalPagePackageBlocks(pageCount(pages));
    myReport->add(RVCatalogueRuleId::SpineTooWide, spine.element, widestPart(spine.element, blocks),
                  RVFindingText::tr("the spine is %1 mm wide at %2 pages, but bookbinders take at most %3 mm; "
                                    "check the widths and their unit")
                          .arg(QString::number(width, 'f', 1), QString::number(pages), QString::number(WIDEST_SPINE)));
}

void RVSpineCheck::addNegative(const Spine &spine)
{
    const QByteArray name = spine.negative.first().toLatin1();
    const QLatin1StringView attribute(name);
    if (shrinksTooFar(spine))
        return myReport->add(RVCatalogueRuleId::SpineFontTooSmall, spine.element, attribute,
                             RVFindingText::tr("the spine shrinks, so that at %1 pages it is too narrow for the "
                                               "smallest font; write a %2 of 0 or more")
                                     .arg(QString::number(myPageCounts.counts.maxPages()), attribute),
                             { { rvPlaceOf(myReport->product().element(), "max_pages"_L1,
                                           RVFindingText::tr("the highest page count")) } });
    const QString text = spine.negative.size() == 1 ? RVFindingText::tr("%1 is below 0; write 0 or more")
                                                    : RVFindingText::tr("%1 are below 0; write 0 or more");
    RVFindingDetails details;
    for (const QString &other : spine.negative.sliced(1))
        details.places += rvPlaceOf(spine.element, QLatin1StringView(other.toLatin1()), RVFindingText::tr("below 0"));
    myReport->add(RVCatalogueRuleId::SpineNegative, spine.element, attribute, text.arg(spine.negative.join(", "_L1)),
                  details);
}

bool RVSpineCheck::isFinite(const Spine &spine) const
{
    return qIsFinite(spine.config.spineWidth(pageCount(myPageCounts.counts.minPages())).value())
            && qIsFinite(spine.config.spineWidth(pageCount(myPageCounts.counts.maxPages())).value());
}

/// True only if the spine has no other fault.
bool RVSpineCheck::shrinksTooFar(const Spine &spine) const
{
    const bool onlyGrowthIsNegative = !spine.negative.contains("base_width"_L1)
            && !spine.negative.contains("additional_width"_L1);
    return spine.isReadable && spine.isUnitKnown && onlyGrowthIsNegative && myPageCounts.areValid
            && spine.config.hasRoomForText(pageCount(myPageCounts.counts.minPages()))
            && !spine.config.hasRoomForText(pageCount(myPageCounts.counts.maxPages()));
}
