#ifndef RVBLEEDMARGIN_H
#define RVBLEEDMARGIN_H

#include "RVProductBaseExport.h"

#include <QtGlobal>

/// The bleed of a page whose opposite edges have the same: one amount for left and right, one for top and bottom.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVBleedMargin
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVBleedMargin
{
public:
    /// Both amounts in the unit of the page size.
    RVBleedMargin(int horizontal, int vertical) noexcept : myHorizontal(horizontal), myVertical(vertical) { }
    RVBleedMargin(const RVBleedMargin &) noexcept = default;
    RVBleedMargin(RVBleedMargin &&) noexcept = default;
    RVBleedMargin &operator=(const RVBleedMargin &) noexcept = default;
    RVBleedMargin &operator=(RVBleedMargin &&) noexcept = default;
    virtual ~RVBleedMargin();

    int horizontal() const noexcept { return myHorizontal; } ///< The bleed of the left and of the right edge.
    int vertical() const noexcept { return myVertical; } ///< The bleed of the top and of the bottom edge.
    bool isNull() const noexcept { return myHorizontal == 0 && myVertical == 0; } ///< True when both are 0.

    /// Compares both amounts.
    /// @{
    friend bool operator==(const RVBleedMargin &a, const RVBleedMargin &b) noexcept
    {
        return a.myHorizontal == b.myHorizontal && a.myVertical == b.myVertical;
    }
    friend bool operator!=(const RVBleedMargin &a, const RVBleedMargin &b) noexcept { return !(a == b); }
    /// @}

private:
    int myHorizontal;
    int myVertical;
};

Q_DECLARE_TYPEINFO(RVBleedMargin, Q_RELOCATABLE_TYPE);

#endif
