#include "PlotFrame.h"

#include "Drawing.h"
#include "SpinePlot.h"

#include <QFontMetricsF>
#include <QPaintDevice>

#include <algorithm>

namespace {

// In lines of text.
constexpr qreal ABOVE_BAND = 1.1;
constexpr qreal BAND_HEIGHT = 1.2;
constexpr qreal ABOVE_PLOT = 2.6;
constexpr qreal BELOW_PLOT = 2.4;
constexpr qreal LEAST_PLOT = 2;
/// In millimetres.
constexpr qreal SMALLEST_STEP = 0.01;
/// Left and right of the curve, as a part of it.
constexpr qreal SPACE = 0.02;

AxisTicks widthTicks(const SpineTable &table, qreal room)
{
    const auto [narrowest, widest] = std::minmax({ table.row(0).width, table.row(table.rowCount() - 1).width });
    // A curve that begins far above 0 would look flat, so the axis then begins below the narrowest spine.
    const bool isFarAbove = narrowest < widest && narrowest >= 0.6 * widest;
    const qreal lowest = narrowest > 0 && !isFarAbove ? 0 : narrowest;
    const qreal margin = widest > narrowest ? 0.05 * (widest - lowest) : qMax(1.0, 0.5 * qAbs(widest));
    return AxisTicks(lowest == 0 ? 0 : lowest - margin, widest + margin, int(qBound(2.0, room, 8.0)), SMALLEST_STEP);
}

}

PlotFrame::PlotFrame(const SpineTable &table, const QLocale &locale, bool hasTitle, const QRectF &rect,
                     QPaintDevice *device)
    : myPoint(device->logicalDpiY() / 72.0),
      myInner(rect.adjusted(4 * myPoint, 4 * myPoint, -10 * myPoint, -3 * myPoint)),
      myLineHeight(QFontMetricsF(Drawing::textFont(SpinePlot::TEXT_SIZE), device).height()),
      myPlot(myInner.adjusted(0, ABOVE_PLOT * myLineHeight, 0, -BELOW_PLOT * myLineHeight)),
      myYTicks(widthTicks(table, myPlot.height() / (2 * myLineHeight))),
      myXTicks(0, 1, 1, 1)
{
    const QFontMetricsF metrics(Drawing::textFont(SpinePlot::TEXT_SIZE), device);
    if (hasTitle)
        myPlot.adjust(0, 1.4 * QFontMetricsF(Drawing::textFont(SpinePlot::TITLE_SIZE, true), device).height(), 0, 0);
    myYTicks = widthTicks(table, myPlot.height() / (2 * myLineHeight));
    const auto labelWidth = [&](qreal value) { return metrics.horizontalAdvance(myYTicks.text(value, locale)); };
    const qreal labels = qMax(labelWidth(myYTicks.first()), labelWidth(myYTicks.last()));
    myPlot.setLeft(myInner.left() + myLineHeight + labels + 7 * myPoint);
    myBand = QRectF(myPlot.left(), myPlot.top() - (ABOVE_PLOT - ABOVE_BAND) * myLineHeight, myPlot.width(),
                    BAND_HEIGHT * myLineHeight);
    const qreal first = table.row(0).pages;
    const qreal last = table.row(table.rowCount() - 1).pages;
    const qreal space = last > first ? SPACE * (last - first) : 1;
    myLeft = first - space;
    myRight = last + space;
    myXTicks = pageTicks(table, metrics.horizontalAdvance(locale.toString(qint64(last))) + 12 * myPoint);
}

bool PlotFrame::hasRoom() const
{
    return myPlot.width() >= LEAST_PLOT * myLineHeight && myPlot.height() >= LEAST_PLOT * myLineHeight;
}

qreal PlotFrame::y(qreal width) const
{
    return myPlot.bottom() - (width - myYTicks.first()) / (myYTicks.last() - myYTicks.first()) * myPlot.height();
}

AxisTicks PlotFrame::pageTicks(const SpineTable &table, qreal labelWidth) const
{
    return AxisTicks(table.row(0).pages, table.row(table.rowCount() - 1).pages,
                     int(qBound(1.0, myPlot.width() / labelWidth, 12.0)), 1);
}
