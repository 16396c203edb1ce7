#include "RVPageComparison_p.h"

#include "RVCatalogueProduct.h"
#include "RVCatalogueValues_p.h"
#include "RVPageCountRange_p.h"
#include "RVProductChanges_p.h"

using namespace Qt::StringLiterals;

namespace {

/// The highest number of page counts at which widths are compared, so that a product with millions of them takes no
/// longer.
constexpr qint64 MOST_COMPARED_COUNTS = 10000;

/// Consecutive page counts with the same two widths.
struct Widths
{
    RVPageCountRange counts;
    RVVersions<RVDistance> widths;

    /// Adds a page count; false if its widths differ.
    bool extend(qint64 pages, const RVVersions<RVDistance> &at)
    {
        if (!rvSameLength(widths.before, at.before) || !rvSameLength(widths.after, at.after))
            return false;
        counts.to = pages;
        return true;
    }
};

struct Spine
{
    explicit Spine(const RVCatalogueProduct &product)
        : config(product.spine()),
          element(product.element().firstChildElement("composition"_L1).firstChildElement("spine"_L1)),
          unit(product.element().firstChildElement("composition"_L1).attribute("units"_L1))
    { }

    RVDistance width(qint64 pages) const { return config.spineWidth(unsigned(qMax(qint64(0), pages))); }
    RVDistance length(QLatin1StringView name) const { return { rvDoubleValue(element, name).value_or(0), unit }; }

    RVSpineConfig config;
    RVCatalogueElement element;
    RVDistanceUnit unit;
};

RVComparedValue compared(const RVPageCountRange &counts)
{
    return { counts.text(), counts.json() };
}

void add(const Widths &widths, RVProductChanges *changes)
{
    if (widths.counts.isEmpty() || rvSameLength(widths.widths.before, widths.widths.after))
        return;
    changes->beginItem(QString(), widths.counts.json());
    changes->add("spine.width"_L1, RVChangeText::tr("Spine width at %1 pages").arg(widths.counts.text()),
                 rvComparedLengths(widths.widths));
}

void compareWidths(const RVVersions<Spine> &spines, const RVPageCountRange &counts, RVProductChanges *changes)
{
    Widths same;
    const qint64 count = qMin(counts.size(), MOST_COMPARED_COUNTS);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 pages = counts.from + i * counts.step;
        const RVVersions<RVDistance> at { spines.before.width(pages), spines.after.width(pages) };
        if (!same.counts.isEmpty() && same.extend(pages, at))
            continue;
        add(same, changes);
        same = { { pages, pages, counts.step }, at };
    }
    add(same, changes);
}

}

void rvComparePages(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes)
{
    const RVVersions<RVPageCountOrganization> pages { before.pageCounts(), after.pageCounts() };
    if (!pages.differ())
        return;
    changes->addNumber("pages.lowest"_L1, RVChangeText::tr("Lowest page count"),
                       { pages.before.minPages(), pages.after.minPages() });
    changes->addNumber("pages.highest"_L1, RVChangeText::tr("Highest page count"),
                       { pages.before.maxPages(), pages.after.maxPages() });
    changes->addNumber("pages.step"_L1, RVChangeText::tr("Page step"),
                       { pages.before.pageIncrement(), pages.after.pageIncrement() });
    const auto oldCounts = RVPageCountRange::of(pages.before.pageCounts());
    const auto newCounts = RVPageCountRange::of(pages.after.pageCounts());
    for (const RVPageCountRange &range : rvCountsWithout(oldCounts, newCounts))
        changes->add("pages.counts"_L1, RVChangeText::tr("Page counts"), { compared(range), {} });
    for (const RVPageCountRange &range : rvCountsWithout(newCounts, oldCounts))
        changes->add("pages.counts"_L1, RVChangeText::tr("Page counts"), { {}, compared(range) });
}

void rvCompareSpines(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes)
{
    const RVVersions<Spine> spines { Spine(before), Spine(after) };
    const auto addLength = [&](QLatin1StringView subject, const QString &label, QLatin1StringView name) {
        changes->addLength(subject, label, { spines.before.length(name), spines.after.length(name) });
    };
    const auto packages = [](const Spine &spine) {
        return rvIntValue(spine.element, "packages_per_block"_L1).value_or(0);
    };
    addLength("spine.base_width"_L1, RVChangeText::tr("Spine, base width"), "base_width"_L1);
    addLength("spine.block_width"_L1, RVChangeText::tr("Spine, block width"), "block_width"_L1);
    addLength("spine.additional_width"_L1, RVChangeText::tr("Spine, additional width"), "additional_width"_L1);
    changes->addNumber("spine.packages_per_block"_L1, RVChangeText::tr("Spine, packages per block"),
                       { packages(spines.before), packages(spines.after) });
    compareWidths(spines,
                  rvCommonCounts(RVPageCountRange::of(before.pageCounts().pageCounts()),
                                 RVPageCountRange::of(after.pageCounts().pageCounts())),
                  changes);
}
