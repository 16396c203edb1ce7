#include "SpineTable.h"

#include "SpineFont.h"

#include <QtNumeric>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// As an unsigned number a negative count would have the spine of four billion pages.
unsigned spinePages(int pages)
{
    return unsigned(qMax(0, pages));
}

}

SpineTable::SpineTable(const RVSpineConfig &spine, const RVPageCountOrganization &pageCounts)
    : mySpine(spine),
      myPageCounts(pageCounts.isValid() ? pageCounts.pageCounts() : RVPageCounts()),
      myRowCount(int(qMin(myPageCounts.size(), qint64(std::numeric_limits<int>::max()))))
{
    if (myRowCount > 0 && !(qIsFinite(width(0)) && qIsFinite(width(myRowCount - 1))))
        myRowCount = 0;
    for (int first = 0; first < myRowCount; first = nextChange(first, &SpineTable::fontSize))
        myFontRuns += FontRun { first, fontSize(first) };
}

SpineRow SpineTable::row(int index) const
{
    const auto behind = std::upper_bound(myFontRuns.begin(), myFontRuns.end(), index,
                                         [](int row, const FontRun &run) { return row < run.firstRow; });
    return { pages(index), index, blocks(index), width(index),
             behind == myFontRuns.begin() ? 0 : std::prev(behind)->fontSize };
}

int SpineTable::rowNear(qreal pageCount) const
{
    if (myRowCount < 2)
        return myRowCount - 1;
    const qreal step = (qreal(pages(myRowCount - 1)) - pages(0)) / (myRowCount - 1);
    return int(std::round(qBound(0.0, (pageCount - pages(0)) / step, qreal(myRowCount - 1))));
}

QList<SpineRow> SpineTable::steps(int most) const
{
    QList<SpineRow> result;
    for (int index = 0; index < myRowCount && result.size() < most; index = nextChange(index, &SpineTable::blocks))
        result += row(index);
    if (result.isEmpty() || result.constLast().packages == myRowCount - 1)
        return result;
    if (result.size() < most && nextChange(result.constLast().packages, &SpineTable::blocks) == myRowCount)
        return result += row(myRowCount - 1);
    result.clear();
    for (int i = 0; i < most; ++i)
        result += row(int(qint64(myRowCount - 1) * i / (most - 1)));
    return result;
}

int SpineTable::blocks(int index) const
{
    return mySpine.additionalPagePackageBlocks(spinePages(pages(index)));
}

qreal SpineTable::width(int index) const
{
    return mySpine.spineWidth(spinePages(pages(index))).value(DISTANCE_UNIT_MILLIMETRE);
}

int SpineTable::fontSize(int index) const
{
    return SpineFont::largestSize(mySpine, pages(index));
}

int SpineTable::nextChange(int index, int (SpineTable::*function)(int) const) const
{
    const int value = (this->*function)(index);
    int same = index;
    int other = myRowCount;
    while (other - same > 1) {
        const int middle = same + (other - same) / 2;
        ((this->*function)(middle) == value ? same : other) = middle;
    }
    return other;
}
