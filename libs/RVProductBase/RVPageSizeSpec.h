#ifndef RVPAGESIZESPEC_H
#define RVPAGESIZESPEC_H

#include "RVMargins.h"
#include "RVProductBaseExport.h"

#include <QPoint>
#include <QPointF>
#include <QSize>

class QDebug;

/// The size of a page: the part that can be used, the bleed around it, and the usable size of the slipcase cover if the
/// product has one. All sizes have the same unit. A moved-from object is valid.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVPageSizeSpec
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVPageSizeSpec
{
public:
    /// A page of invalid size without bleed.
    RVPageSizeSpec() = default;
    /// A page without a slipcase cover.
    RVPageSizeSpec(const QSize &usableSize, const RVMargins &bleedMargins);

    QSize usableSize() const noexcept { return myUsableSize; } ///< The part that remains when the bleed is cut away.
    RVMargins bleedMargins() const noexcept { return myBleedMargins; } ///< The edges that are cut away.
    /// The place where the usable part begins on the page with bleed.
    QPoint topLeftOffsetOfUsablePrintArea() const noexcept { return myBleedMargins.topLeft(); }
    /// The usable size with the bleed.
    QSize totalSize() const noexcept;
    /// The usable size of the slipcase cover; (-1, -1) until it is set.
    QSize usableSlipcaseCoverSize() const noexcept { return myUsableSlipcaseCoverSize; }
    /// The offset that moves the slipcase cover to the middle of the page's height, never sideways; (0, 0) if it has no
    /// size.
    QPointF slipcaseTranslationPoint() const noexcept;

    void setUsableSize(const QSize &size) { myUsableSize = size; } ///< Sets the usable size only.
    /// Sets the usable size of the slipcase cover; a negative width or height means that there is none.
    void setUsableSlipcaseCoverSize(const QSize &size) { myUsableSlipcaseCoverSize = size; }

    /// Compares all but the size of the slipcase cover.
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
