#include "RVPageCountCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVValueCheck_p.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The highest usual number of page counts. Books have some hundred at most, and boxes of single photos some more.
constexpr qint64 MOST_USUAL_COUNTS = 1000;

/// The number of page counts of a valid organisation with a step.
qint64 numberOfCounts(const RVPageCountOrganization &counts)
{
    return (qint64(counts.maxPages()) - counts.minPages()) / counts.pageIncrement() + 1;
}

QString reversedText()
{
    return RVFindingText::tr("the lowest page count %1 is above the highest, %2; raise max_pages, or lower pages");
}

QString noStepText()
{
    return RVFindingText::tr("there is no step (page_step) that leads from %1 to %2 pages; write how many pages one "
                             "package has");
}

/// The counts next to a highest count that the steps miss; the higher one only if it is an int.
QString missText(const RVPageCountOrganization &counts)
{
    const qint64 below = counts.pageCounts().last();
    const qint64 above = below + counts.pageIncrement();
    const QString text = RVFindingText::tr("steps of %1 from %2 pages never meet %3")
                                 .arg(counts.pageIncrement())
                                 .arg(counts.minPages())
                                 .arg(counts.maxPages());
    return rvAdvised(text,
                     above > std::numeric_limits<int>::max()
                             ? RVFindingText::tr("the nearest count is %1").arg(below)
                             : RVFindingText::tr("the nearest counts are %1 and %2").arg(below).arg(above));
}

}

RVCheckedPageCounts RVPageCountCheck::check(const RVCatalogueProduct &product)
{
    const RVCatalogueElement element = product.element();
    bool isReadable = rvCheckedBool(element, "photo_box"_L1, false, myReport).has_value();
    for (const QLatin1StringView name : { "pages"_L1, "max_pages"_L1, "page_step"_L1 })
        isReadable = rvCheckedInt(element, name, 0, myReport).has_value() && isReadable;
    const std::optional<int> pieces = rvCheckedInt(element, "pieces"_L1, 1, myReport);
    const RVPageCountOrganization counts = product.pageCounts();
    return { counts, isReadable && pieces && checkValidity(element, counts, *pieces) };
}

bool RVPageCountCheck::checkValidity(const RVCatalogueElement &product, const RVPageCountOrganization &counts,
                                     int pieces)
{
    const QString lowest = QString::number(counts.minPages());
    const QString highest = QString::number(counts.maxPages());
    if (pieces < 1)
        return addInvalid(product, "pieces"_L1, RVFindingText::tr("there are %1 pieces; write 1 or more").arg(pieces));
    if (counts.minPages() > counts.maxPages()) {
        myReport->add(RVCatalogueRuleId::PageCountsReversed, product, "max_pages"_L1,
                      reversedText().arg(lowest, highest),
                      { { rvPlaceOf(product, "pages"_L1, RVFindingText::tr("the lowest page count")) } });
        return false;
    }
    if (counts.minPages() < counts.maxPages() && counts.pageIncrement() == 0)
        return addInvalid(product, "page_step"_L1, noStepText().arg(lowest, highest));
    if (counts.pageIncrement() < 0)
        return addInvalid(product, "page_step"_L1,
                          RVFindingText::tr("steps of %1 pages are below 0; write how many pages one package has")
                                  .arg(counts.pageIncrement()));
    if (!counts.isValid() || counts.minPages() < 0)
        return addInvalid(product, "pages"_L1,
                          RVFindingText::tr("the lowest page count is %1; write 1 or more").arg(lowest));
    return counts.pageIncrement() == 0 || checkSteps(product, counts);
}

/// False if the highest page count is probably not the one that was meant.
bool RVPageCountCheck::checkSteps(const RVCatalogueElement &product, const RVPageCountOrganization &counts)
{
    constexpr auto maxPages = "max_pages"_L1;
    const QString lowest = QString::number(counts.minPages());
    const QString highest = QString::number(counts.maxPages());
    const qint64 number = numberOfCounts(counts);
    if (counts.minPages() == counts.maxPages() && !product.hasAttribute(maxPages)) {
        const QString text = RVFindingText::tr("there is a step (page_step), but no highest page count (max_pages), so "
                                               "%1 pages are the only count; write the highest one");
        myReport->add(RVCatalogueRuleId::MaxPagesMissing, product, maxPages, text.arg(lowest),
                      { { rvPlaceOf(product, "page_step"_L1, RVFindingText::tr("the step")) }, {} });
        return false;
    }
    if (number > MOST_USUAL_COUNTS) {
        const QString text = RVFindingText::tr(
                "there are %1 page counts from %2 to %3; lower max_pages, or raise page_step");
        myReport->add(RVCatalogueRuleId::PageCountsExcessive, product, maxPages,
                      text.arg(QString::number(number), lowest, highest));
        return false;
    }
    if (!counts.isConsistent())
        myReport->add(RVCatalogueRuleId::PageStepMissesHighest, product, "page_step"_L1, missText(counts),
                      { { rvPlaceOf(product, "max_pages"_L1, RVFindingText::tr("the highest page count")) } });
    return true;
}

/// Reports invalid page counts, and returns false.
bool RVPageCountCheck::addInvalid(const RVCatalogueElement &product, QLatin1StringView attribute, const QString &text)
{
    myReport->add(RVCatalogueRuleId::PageCountsInvalid, product, attribute, text);
    return false;
}
