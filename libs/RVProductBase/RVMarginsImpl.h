#ifndef RVMARGINSIMPL_H
#define RVMARGINSIMPL_H

#include "RVProductBaseExport.h"

#include <QPoint>
#include <QSharedData>
#include <QSize>

/// The shared data of RVMargins, which documents the operations.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVMarginsImpl
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVMarginsImpl : public QSharedData
{
public:
    /// The operations of RVMargins.
    /// @{
    RVMarginsImpl(int top = 0, int bottom = 0, int left = 0, int right = 0) noexcept;

    int top() const noexcept { return myTop; }
    int bottom() const noexcept { return myBottom; }
    int left() const noexcept { return myLeft; }
    int right() const noexcept { return myRight; }

    QPoint topLeft() const noexcept { return QPoint(myLeft, myTop); }
    QPoint bottomRight() const noexcept { return QPoint(myRight, myBottom); }
    QSize totalMarginWH() const noexcept;
    bool allNull() const noexcept;

    bool operator==(const RVMarginsImpl &other) const noexcept;
    /// @}

private:
    int myTop;
    int myBottom;
    int myLeft;
    int myRight;
};

#endif
