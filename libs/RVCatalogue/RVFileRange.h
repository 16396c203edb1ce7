#ifndef RVFILERANGE_H
#define RVFILERANGE_H

#include "RVFilePosition.h"

/**
 * A piece of a text file: the place of its first letter and the place behind its last one. By default the empty piece
 * at the begin of a file.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVFileRange
 *
 * @ingroup catalogues
 */
struct RVFileRange
{
    RVFilePosition begin; ///< The place of the first letter.
    RVFilePosition end; ///< The place behind the last letter.

    /// Compares both places.
    /// @{
    friend constexpr bool operator==(const RVFileRange &a, const RVFileRange &b) noexcept
    {
        return a.begin == b.begin && a.end == b.end;
    }
    friend constexpr bool operator!=(const RVFileRange &a, const RVFileRange &b) noexcept { return !(a == b); }
    /// @}
};

Q_DECLARE_TYPEINFO(RVFileRange, Q_PRIMITIVE_TYPE);

#endif
