#ifndef RVFILEPOSITION_H
#define RVFILEPOSITION_H

#include <QtGlobal>

/**
 * A place in a text file, as editors count: line and column begin with 1, and a column is a UTF-16 code unit in every
 * encoding of the file. A byte order mark is no column. Lines end with a line feed, a carriage return or both.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVFilePosition
 *
 * @ingroup catalogues
 */
struct RVFilePosition
{
    qint64 line = 1; ///< From 1.
    qint64 column = 1; ///< From 1.

    /// Compares line and column.
    /// @{
    friend constexpr bool operator==(const RVFilePosition &a, const RVFilePosition &b) noexcept
    {
        return a.line == b.line && a.column == b.column;
    }
    friend constexpr bool operator!=(const RVFilePosition &a, const RVFilePosition &b) noexcept { return !(a == b); }
    /// @}
    /// Compares the order in the file.
    friend constexpr bool operator<(const RVFilePosition &a, const RVFilePosition &b) noexcept
    {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    }
};

Q_DECLARE_TYPEINFO(RVFilePosition, Q_PRIMITIVE_TYPE);

#endif
