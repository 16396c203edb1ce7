#ifndef RVMARGINS_H
#define RVMARGINS_H

#include "RVMarginsImpl.h"
#include "RVProductBaseExport.h"

#include <QExplicitlySharedDataPointer>
#include <QPoint>
#include <QSize>

class QDebug;

/**
 * The bleed around a page: the margin that is printed beyond each of its four edges and cut away, in the unit of the
 * page size.
 *
 * It never changes, so copies share their data, also between threads. A moved-from object has no margins.
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVMargins
 *
 * @ingroup geometry
 */
class RVPRODUCTBASE_EXPORT RVMargins
{
public:
    RVMargins(); ///< All margins 0.
    /// The margins in the unit of the page size; @p vertical is for top and bottom, @p horizontal for left and right.
    /// @{
    RVMargins(int top, int bottom, int left, int right);
    RVMargins(int vertical, int horizontal);
    /// @}

    /// The width that is cut away at one edge.
    /// @{
    int top() const noexcept { return data().top(); }
    int bottom() const noexcept { return data().bottom(); }
    int left() const noexcept { return data().left(); }
    int right() const noexcept { return data().right(); }
    /// @}

    /// The left margin as x, the top margin as y.
    QPoint topLeft() const noexcept { return data().topLeft(); }
    /// The right margin as x, the bottom margin as y.
    QPoint bottomRight() const noexcept { return data().bottomRight(); }
    /// The lengths that the margins add to the width and to the height of the page.
    QSize totalMarginWH() const noexcept { return data().totalMarginWH(); }
    bool allNull() const noexcept { return data().allNull(); } ///< True without any bleed.

    /// Compares all four margins.
    /// @{
    bool operator==(const RVMargins &other) const noexcept { return d == other.d || data() == other.data(); }
    bool operator!=(const RVMargins &other) const noexcept { return !(*this == other); }
    /// @}

private:
    const RVMarginsImpl &data() const noexcept { return d ? *d : none(); }
    static const RVMarginsImpl &none() noexcept;

    QExplicitlySharedDataPointer<const RVMarginsImpl> d;
};

Q_DECLARE_TYPEINFO(RVMargins, Q_RELOCATABLE_TYPE);

/// Prints the four margins, each after its name. @relates RVMargins
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVMargins &margins);

#endif
