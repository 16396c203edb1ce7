#ifndef RVPACKEDPLACES_P_H
#define RVPACKEDPLACES_P_H

#include "RVFileRange.h"

#include <QtGlobal>

#include <algorithm>
#include <vector>

/**
 * Places of attributes in files that are read one after the other, each as a number of 56 bits that is not 0. The begin
 * is kept. The end is kept if the attribute ends in its first line and has at most 63 letters; otherwise it is the
 * begin. After 2^30 lines in all files together, every place is in the last of them.
 *
 * Places are counted from the begin of a page. A file begins one, and so does a product that stands far to the right in
 * its line, so that a column fits into 20 bits also where a whole catalogue is one line. Rows continue from page to
 * page, so they identify the page.
 */
class RVPackedPlaces
{
public:
    struct Place
    {
        RVFileRange range;
        qsizetype file; // from 0
    };

    void beginFile();
    /// Call it before the attributes of a product; @p position is the begin of the product.
    void beginProduct(const RVFilePosition &position);

    /// @p range lies in the start tag of the product that was begun last.
    quint64 pack(const RVFileRange &range);
    Place unpack(quint64 packed) const;

private:
    static constexpr int LENGTH_BITS = 6;
    static constexpr int COLUMN_BITS = 20;
    static constexpr quint64 LARGEST_LENGTH = (quint64(1) << LENGTH_BITS) - 1;
    static constexpr quint64 LARGEST_ROW = (quint64(1) << 30) - 1;
    static constexpr quint64 LARGEST_COLUMN = (quint64(1) << COLUMN_BITS) - 1;
    /// The largest tag has 64 KiB and still fits behind this column.
    static constexpr qint64 LARGEST_COLUMN_OF_PRODUCT = qint64(LARGEST_COLUMN / 2);

    struct Page
    {
        /// The column on the page, from 0 in its first line and from 1 in the others.
        qint64 columnOf(const RVFilePosition &position) const
        {
            return position.line == begin.line ? position.column - begin.column : position.column;
        }

        quint64 firstRow;
        qsizetype file;
        RVFilePosition begin;
    };

    void beginPage(const RVFilePosition &begin) { myPages.push_back({ ++myLastRow, myFile, begin }); }

    std::vector<Page> myPages;
    quint64 myLastRow = 0;
    qsizetype myFile = -1;
};

inline void RVPackedPlaces::beginFile()
{
    ++myFile;
    beginPage(RVFilePosition());
}

inline void RVPackedPlaces::beginProduct(const RVFilePosition &position)
{
    if (myPages.back().columnOf(position) > LARGEST_COLUMN_OF_PRODUCT)
        beginPage(position);
}

inline quint64 RVPackedPlaces::pack(const RVFileRange &range)
{
    const Page &page = myPages.back();
    const quint64 row = page.firstRow + quint64(range.begin.line - page.begin.line);
    const auto column = quint64(page.columnOf(range.begin));
    const bool isInOneLine = range.begin.line == range.end.line;
    const quint64 length = isInOneLine ? quint64(range.end.column - range.begin.column) : 0;
    myLastRow = std::max(myLastRow, row);
    return (std::min(row, LARGEST_ROW) << (COLUMN_BITS + LENGTH_BITS))
            | (std::min(column, LARGEST_COLUMN) << LENGTH_BITS) | (length > LARGEST_LENGTH ? 0 : length);
}

inline RVPackedPlaces::Place RVPackedPlaces::unpack(quint64 packed) const
{
    const quint64 row = packed >> (COLUMN_BITS + LENGTH_BITS);
    const auto next = std::upper_bound(myPages.begin(), myPages.end(), row,
                                       [](quint64 wanted, const Page &page) { return wanted < page.firstRow; });
    const Page &page = *(next - 1);
    const auto lines = qint64(row - page.firstRow);
    const auto column = qint64((packed >> LENGTH_BITS) & LARGEST_COLUMN);
    const RVFilePosition begin { page.begin.line + lines, lines == 0 ? page.begin.column + column : column };
    return { { begin, { begin.line, begin.column + qint64(packed & LARGEST_LENGTH) } }, page.file };
}

#endif
