#ifndef PLOTFRAME_H
#define PLOTFRAME_H

#include "AxisTicks.h"
#include "SpineTable.h"

#include <QLocale>
#include <QRectF>

class QPaintDevice;

/// The places of a spine plot on its device: the title, the axes, the band of font sizes above them, and where page
/// counts and widths are between the axes.
class PlotFrame
{
public:
    /// The table has rows. @p device measures the texts.
    PlotFrame(const SpineTable &table, const QLocale &locale, bool hasTitle, const QRectF &rect, QPaintDevice *device);

    /// False where the rectangle is too small for a plot.
    bool hasRoom() const;
    const QRectF &inner() const { return myInner; } ///< The rectangle without its margins.
    const QRectF &plot() const { return myPlot; } ///< Between the axes.
    const QRectF &band() const { return myBand; } ///< Of the font sizes, above the plot.
    qreal point() const { return myPoint; } ///< Of text, in units of the device.
    qreal lineHeight() const { return myLineHeight; }
    const AxisTicks &xTicks() const { return myXTicks; }
    const AxisTicks &yTicks() const { return myYTicks; }
    qreal left() const { return myLeft; } ///< The page count at the left edge.
    qreal right() const { return myRight; }

    qreal x(qreal pages) const { return myPlot.left() + (pages - myLeft) / (myRight - myLeft) * myPlot.width(); }
    qreal y(qreal width) const;
    QPointF at(const SpineRow &row) const { return { x(row.pages), y(row.width) }; }
    /// The page count at a place of the device; also outside of what the table has.
    qreal pages(qreal x) const { return myLeft + (x - myPlot.left()) / myPlot.width() * (myRight - myLeft); }

private:
    AxisTicks pageTicks(const SpineTable &table, qreal labelWidth) const;

    qreal myPoint;
    QRectF myInner;
    qreal myLineHeight;
    QRectF myPlot;
    QRectF myBand;
    qreal myLeft;
    qreal myRight;
    AxisTicks myYTicks;
    AxisTicks myXTicks;
};

#endif
