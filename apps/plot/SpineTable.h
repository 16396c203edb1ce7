#ifndef SPINETABLE_H
#define SPINETABLE_H

#include <RVPageCountOrganization.h>
#include <RVSpineConfig.h>

#include <QList>

/// The spine of a product at one of its page counts.
struct SpineRow
{
    int pages = 0;
    int packages = 0; ///< above the lowest count
    int blocks = 0; ///< whole blocks of packages
    qreal width = 0; ///< in millimetres, sides included
    int fontSize = 0; ///< the largest of SpineFont that fits, in points
};

/**
 * The spine of a product at every page count that can be chosen, one row a count. Rows are computed when they are asked
 * for, because a catalogue may allow two billion counts.
 *
 * Width and font size grow, or shrink, with the page count, but never do both. So what stays the same over many rows is
 * found by halving.
 */
class SpineTable
{
public:
    /// The first of the rows that share a font size.
    struct FontRun
    {
        int firstRow = 0;
        int fontSize = 0;
    };

    /// No rows.
    SpineTable() = default;
    /// No rows where the page counts are invalid, or a width is too large for a number.
    SpineTable(const RVSpineConfig &spine, const RVPageCountOrganization &pageCounts);

    int rowCount() const { return myRowCount; }
    SpineRow row(int index) const;
    /// The row whose page count is nearest to this one; -1 without rows.
    int rowNear(qreal pageCount) const;
    /// The rows that share a font size, from the first row to the last.
    const QList<FontRun> &fontRuns() const { return myFontRuns; }
    /// The rows at which the spine becomes one block wider, and the last row. Rows at even distances instead, if there
    /// are more than @p most, which is at least 2.
    QList<SpineRow> steps(int most) const;

private:
    int pages(int index) const { return myPageCounts.at(index); }
    int blocks(int index) const;
    qreal width(int index) const;
    int fontSize(int index) const;
    /// The first row after @p index, found by halving, of which the function gives another result.
    int nextChange(int index, int (SpineTable::*function)(int) const) const;

    RVSpineConfig mySpine;
    RVPageCounts myPageCounts;
    int myRowCount = 0;
    QList<FontRun> myFontRuns;
};

#endif
