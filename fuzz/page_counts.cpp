// Lowest and highest count, increment, two page counts, a number of packages; then the bounds of two more ranges.
#include "Input.h"
#include "Properties.h"

#include <RVIntRange.h>
#include <RVPageCountOrganization.h>
#include <RVPageCountOrganizationListModel.h>

#include <limits>

namespace {

constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

int saturated(qint64 value)
{
    return int(qBound(qint64(LOWEST), value, qint64(HIGHEST)));
}

QString shownRange(const RVRange<int> &range)
{
    return QStringLiteral("[%1, %2]").arg(range.min).arg(range.max);
}

void checkRange(const RVIntRange &range, const RVIntRange &other, int value)
{
    checkCopies(range, other);
    CHECK_EQUAL(range.isValid(), range.min <= range.max);
    CHECK_EQUAL(range.isValid(), range.contains(range));
    CHECK_EQUAL(range.intersects(other), other.intersects(range));
    if (range.isValid() && other.isValid()) {
        checkOrder(range, other);
        CHECK(range == other || range < other || other < range);
        CHECK_EQUAL(range.intersects(other), qMax(range.min, other.min) <= qMin(range.max, other.max));
        CHECK(!range.contains(other) || range.intersects(other));
        CHECK(!range.contains(other) || !other.contains(range) || range == other);
        CHECK(range.contains(range.center()));
    }
    if (!range.isValid())
        CHECK(!(range < other));
    CHECK(range.shifted(0) == range && range.stretched(1) == range);
    CHECK(range.stretched(0) == RVIntRange());
    CHECK_EQUAL(range.shifted(value).min, saturated(qint64(range.min) + value));
    CHECK_EQUAL(range.shifted(value).max, saturated(qint64(range.max) + value));
    CHECK_EQUAL(range.stretched(value).min, saturated(qint64(range.min) * value));
    CHECK_EQUAL(range.stretched(value).max, saturated(qint64(range.max) * value));
}

void checkExpanding(const RVIntRange &range, int value)
{
    RVIntRange expanded = range;
    expanded.expandTo(value);
    if (range == RVIntRange())
        CHECK_EQUAL(shownRange(expanded), shownRange(RVIntRange(value, value)));
    else if (range.isValid())
        CHECK(expanded.contains(value) && expanded.contains(range));
    const RVIntRange before = expanded;
    if (range.isValid() && !(before == RVIntRange())) {
        expanded.expandTo(value);
        CHECK_EQUAL(shownRange(expanded), shownRange(before));
    }
}

/// Properties that hold for every page count and every organisation, sensible or not.
void checkAnyPageCount(const RVPageCountOrganization &counts, int pages)
{
    CHECK_EQUAL(counts.inRange(pages), counts.range().contains(pages));
    CHECK(!counts.isValidPageCount(pages) || counts.inRange(pages));
    const int constrained = counts.constrain(pages);
    if (!counts.inRange(pages))
        CHECK(constrained == counts.minPages() || constrained == counts.maxPages());
    else if (counts.pageIncrement() == 0)
        CHECK_EQUAL(constrained, counts.minPages());

    RVPageCountOrganization shrunk = counts;
    const RVPageCountOrganization returned = (shrunk -= pages);
    CHECK_EQUAL(returned, shrunk);
    CHECK_EQUAL(shrunk.pageIncrement(), counts.pageIncrement());
    const qint64 lowest = qint64(counts.minPages()) - pages;
    const qint64 highest = qint64(counts.maxPages()) - pages;
    CHECK_EQUAL(shrunk.minPages(), lowest < 1 ? counts.minPages() : saturated(lowest));
    CHECK_EQUAL(shrunk.maxPages(), lowest < 1 ? counts.maxPages() : saturated(highest));
}

/// A constrained page count is allowed, unless it was rounded up above the highest one.
void checkPageCount(const RVPageCountOrganization &counts, int pages)
{
    const int constrained = counts.constrain(pages);
    CHECK(constrained >= counts.minPages());
    if (pages > counts.maxPages())
        CHECK_EQUAL(constrained, counts.maxPages());
    else if (pages > counts.minPages() && counts.pageIncrement() > 0)
        CHECK(constrained >= pages && constrained - qint64(pages) < counts.pageIncrement());
    if (constrained < counts.maxPages())
        CHECK(counts.isValidPageCount(constrained));
    if (counts.isValidPageCount(pages))
        CHECK_EQUAL(constrained, counts.pageIncrement() == 0 ? counts.minPages() : pages);

    const int packages = counts.countPackages(pages);
    CHECK(packages >= 0 || counts.pageIncrement() < 0);
    if (pages >= counts.minPages() && counts.pageIncrement() > 0)
        CHECK(counts.pagesWithNExtraPackages(packages) <= pages);
    if (counts.inRange(pages))
        CHECK(packages < counts.numberOfPackages() || packages == HIGHEST);

    const RVPageCountOrganization adapted = counts.adaptedTo(pages);
    CHECK_EQUAL(adapted.pageIncrement(), counts.pageIncrement());
    CHECK_EQUAL(adapted.maxPages(), counts.maxPages());
    CHECK_EQUAL(adapted.minPages(), qMax(counts.minPages(), constrained));
    if (counts.isConsistent()) {
        CHECK(counts.isValidPageCount(constrained));
        CHECK_EQUAL(counts.constrain(constrained), constrained);
        CHECK(adapted.isConsistent() || adapted.range() == RVIntRange()); // [0, 0] is none
        CHECK_EQUAL(adapted.adaptedTo(pages), adapted);
    }
}

/// A view offers exactly the allowed counts.
void checkRows(const RVPageCountOrganization &counts, int row)
{
    RVPageCountOrganizationListModel model(counts.isOnePageProduct());
    model.setPageOrganization(counts);
    CHECK_EQUAL(model.rowCount(), counts.numberOfPackages());
    CHECK_EQUAL(model.lowestValue(), counts.minPages());
    CHECK_EQUAL(model.highestValue(), counts.maxPages());
    CHECK_EQUAL(model.pagesAtIndex(row), counts.pagesWithNExtraPackages(row));
    const RVPageCounts offered = counts.pageCounts();
    CHECK(offered.isEmpty() || offered.first() == counts.minPages());
    if (counts.range().isValid())
        CHECK_EQUAL(saturated(offered.size()), qMax(0, model.rowCount()));
    if (row >= 0 && row < offered.size())
        CHECK_EQUAL(offered.at(row), model.pagesAtIndex(row));
    const QString text = model.data(model.index(row, 0), Qt::DisplayRole).toString();
    CHECK_EQUAL(text.isEmpty(), row < 0 || row >= model.rowCount());
    if (!text.isEmpty())
        CHECK(text.startsWith(QString::number(model.pagesAtIndex(row)) + u' '));
    if (counts.isValid() && !text.isEmpty()) {
        CHECK(counts.isValidPageCount(model.pagesAtIndex(row)));
        CHECK_EQUAL(model.indexForPages(model.pagesAtIndex(row)), row);
    }
}

void checkOrganization(const RVPageCountOrganization &counts, int n)
{
    checkCopies(counts, RVPageCountOrganization());
    CHECK_EQUAL(counts.clone(), counts);
    const RVPageCountOrganization lowestOnly = counts.clone(true);
    CHECK_EQUAL(lowestOnly.numberOfPackages(), 1);
    CHECK_EQUAL(lowestOnly.isValid(), counts.minPages() != 0);
    CHECK_EQUAL(counts.minPagesWithPano(), counts.pagesWithNExtraPackages(2));
    CHECK_EQUAL(counts.pagesWithNExtraPackages(0), counts.minPages());
    CHECK_EQUAL(counts.pagesWithNExtraPackages(n), saturated(counts.minPages() + qint64(counts.pageIncrement()) * n));
    CHECK(!counts.isConsistent() || counts.isValid());
    CHECK_EQUAL(counts.dump().count(u';'), 2);
    if (counts.isValid()) {
        CHECK(counts.numberOfPackages() >= 1);
        CHECK_EQUAL(counts.numberOfPackages(), saturated(qint64(counts.countPackages(counts.maxPages())) + 1));
        CHECK(counts.isValidPageCount(counts.minPages()));
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const int lowest = input.integer();
    const int highest = input.integer();
    const RVIntRange range(lowest, highest);
    const RVPageCountOrganization counts(range, input.integer());
    const int pages = input.integer();
    const int otherPages = input.integer();
    const int n = input.integer();
    const int otherLowest = input.integer();
    const RVIntRange other(otherLowest, input.integer());

    checkRange(range, other, pages);
    checkExpanding(range, pages);
    checkRange(other, range, n);
    checkExpanding(other, n);
    checkOrganization(counts, n);
    checkRows(counts, n);
    checkRows(counts, qMax(1, counts.numberOfPackages()) - 1);
    for (const int count : { pages, otherPages, counts.pagesWithNExtraPackages(n) }) {
        checkAnyPageCount(counts, count);
        if (counts.isValid())
            checkPageCount(counts, count);
    }
    return 0;
}
