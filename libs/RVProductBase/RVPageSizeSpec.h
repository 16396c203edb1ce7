#ifndef RVPAGESIZESPEC_H
#define RVPAGESIZESPEC_H

#include "RVMargins.h"
#include "RVProductBaseExport.h"

#include <QPoint>
#include <QPointF>
#include <QSize>

class QDebug;

/// The size of a page: the part that can be used, the bleed around it, and the usable size of the slipcase cover where
/// the product has one. All in the same unit. What was moved from is a valid object.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVPageSizeSpec
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVPageSizeSpec
{
public:
    /// A page of invalid size without bleed.
    RVPageSizeSpec() = default;
    /// Without a slipcase cover.
    RVPageSizeSpec(const QSize &usableSize, const RVMargins &bleedMargins);

    QSize usableSize() const noexcept { return myUsableSize; } ///< The part that remains when the bleed is cut away.
    RVMargins bleedMargins() const noexcept { return myBleedMargins; } ///< The edges that are cut away.
    /// The place where the usable part begins on the page with bleed.
    QPoint topLeftOffsetOfUsablePrintArea() const noexcept { return myBleedMargins.topLeft(); }
    /// The usable size with the bleed.
    QSize totalSize() const noexcept;
    /// (-1, -1) until it is set.
    QSize usableSlipcaseCoverSize() const noexcept { return myUsableSlipcaseCoverSize; }
    /// Moves the slipcase cover to the middle of the page's height, never sideways. (0, 0) where it has no size.
    QPointF slipcaseTranslationPoint() const noexcept;

    void setUsableSize(const QSize &size) { myUsableSize = size; } ///< The bleed stays as it is.
    /// A negative width or height stands for no slipcase cover.
    void setUsableSlipcaseCoverSize(const QSize &size) { myUsableSlipcaseCoverSize = size; }

    /// The size of the slipcase cover does not count.
    /// @{
    bool operator==(const RVPageSizeSpec &other) const noexcept;
    bool operator!=(const RVPageSizeSpec &other) const noexcept { return !(*this == other); }
    /// @}

private:
    QSize myUsableSize;
    RVMargins myBleedMargins;
    QSize myUsableSlipcaseCoverSize;
};

Q_DECLARE_TYPEINFO(RVPageSizeSpec, Q_RELOCATABLE_TYPE);

/// Prints the usable size and that of the slipcase cover. @relates RVPageSizeSpec
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageSizeSpec &spec);

#endif
