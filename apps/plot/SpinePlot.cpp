#include "SpinePlot.h"

#include "AxisTicks.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// More steps than this cannot be told apart on paper.
constexpr int MOST_STEPS = 800;
/// In points: the least distance at which the dots of two page counts can be told apart.
constexpr qreal DOT_DISTANCE = 3.5;
constexpr qreal DOT_RADIUS = 1.1;
constexpr qreal TEXT_SIZE = 8;
constexpr qreal TITLE_SIZE = 10.5;

QFont plotFont(qreal pointSize, bool isBold = false)
{
    QFont font(u"sans-serif"_s);
    font.setPointSizeF(pointSize);
    font.setBold(isBold);
    return font;
}

}

/// Where the values go on the device.
struct SpinePlot::Frame
{
    QRectF plot;
    QRectF band; // of the font sizes, above the plot
    qreal point; // of text, in units of the device
    qreal left; // page count at the left edge
    qreal right;
    qreal bottom; // width at the lower edge
    qreal top;
    qreal lineHeight;

    qreal x(qreal pages) const { return plot.left() + (pages - left) / (right - left) * plot.width(); }
    qreal y(qreal width) const { return plot.bottom() - (width - bottom) / (top - bottom) * plot.height(); }
    QPointF at(const SpineRow &row) const { return { x(row.pages), y(row.width) }; }
};

void SpinePlot::paint(QPainter *painter, const QRectF &rect) const
{
    painter->fillRect(rect, myColors.background);
    if (myTable.rowCount() == 0)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal point = painter->device()->logicalDpiY() / 72.0;
    const QRectF inner = rect.adjusted(4 * point, 4 * point, -10 * point, -3 * point);
    const qreal top = paintTitle(painter, inner);
    painter->setFont(plotFont(TEXT_SIZE));
    const QFontMetricsF metrics(painter->font(), painter->device());
    const qreal line = metrics.height();

    const QList<SpineRow> steps = myTable.steps(MOST_STEPS);
    const auto [narrowest, widest] = std::minmax({ steps.constFirst().width, steps.constLast().width });
    // A curve that begins far above 0 would look flat, so the axis then begins below the narrowest spine.
    const bool isFarAbove = narrowest < widest && narrowest >= 0.6 * widest;
    const qreal lowest = narrowest > 0 && !isFarAbove ? 0 : narrowest;
    const qreal margin = widest > narrowest ? 0.05 * (widest - lowest) : qMax(1.0, 0.5 * qAbs(widest));
    const qreal plotHeight = inner.bottom() - 2.4 * line - (top + 2.6 * line);
    const AxisTicks y(lowest == 0 ? 0 : lowest - margin, widest + margin,
                      int(qBound(2.0, plotHeight / (2 * line), 8.0)), 0.01);

    qreal labels = 0;
    for (const qreal value : { y.first(), y.last() })
        labels = qMax(labels, metrics.horizontalAdvance(y.text(value, myLocale)));
    Frame frame;
    frame.point = point;
    frame.lineHeight = line;
    frame.plot = QRectF(QPointF(inner.left() + line + labels + 7 * point, top + 2.6 * line),
                        QPointF(inner.right(), inner.bottom() - 2.4 * line));
    if (frame.plot.width() < 2 * line || frame.plot.height() < 2 * line) {
        painter->restore();
        return;
    }
    frame.band = QRectF(frame.plot.left(), top + 1.1 * line, frame.plot.width(), 1.2 * line);
    frame.bottom = y.first();
    frame.top = y.last();
    const qreal first = myTable.row(0).pages;
    const qreal last = steps.constLast().pages;
    const qreal space = last > first ? 0.02 * (last - first) : 1;
    frame.left = first - space;
    frame.right = last + space;
    const qreal label = metrics.horizontalAdvance(myLocale.toString(qint64(last))) + 12 * point;
    const AxisTicks x(first, last, int(qBound(1.0, frame.plot.width() / label, 12.0)), 1);

    paintGrid(painter, frame, x, y);
    paintLabels(painter, frame, inner);
    paintFontBand(painter, frame);
    paintCurve(painter, frame, steps);
    paintCounts(painter, frame);
    if (myMarkedRow >= 0 && myMarkedRow < myTable.rowCount())
        paintMarker(painter, frame);
    painter->restore();
}

// Returns where the next line begins.
qreal SpinePlot::paintTitle(QPainter *painter, const QRectF &rect) const
{
    if (myTitle.isEmpty())
        return rect.top();
    painter->setFont(plotFont(TITLE_SIZE, true));
    const QFontMetricsF metrics(painter->font(), painter->device());
    painter->setPen(myColors.text);
    painter->drawText(QPointF(rect.left(), rect.top() + metrics.ascent()),
                      metrics.elidedText(myTitle, Qt::ElideRight, rect.width()));
    return rect.top() + 1.4 * metrics.height();
}

void SpinePlot::paintGrid(QPainter *painter, const Frame &frame, const AxisTicks &x, const AxisTicks &y) const
{
    const QPen gridPen(myColors.grid, 0.4 * frame.point);
    const QPen axisPen(myColors.text, 0.6 * frame.point);
    const qreal tick = 3 * frame.point;
    const QRectF &plot = frame.plot;
    for (const qreal value : y.values(frame.bottom, frame.top)) {
        const qreal at = frame.y(value);
        painter->setPen(gridPen);
        painter->drawLine(QPointF(plot.left(), at), QPointF(plot.right(), at));
        painter->setPen(axisPen);
        painter->drawLine(QPointF(plot.left() - tick, at), QPointF(plot.left(), at));
        painter->drawText(QRectF(plot.left() - tick - plot.width(), at - frame.lineHeight / 2,
                                 plot.width() - 2 * frame.point, frame.lineHeight),
                          Qt::AlignRight | Qt::AlignVCenter, y.text(value, myLocale));
    }
    for (const qreal value : x.values(frame.left, frame.right)) {
        const qreal at = frame.x(value);
        painter->setPen(gridPen);
        painter->drawLine(QPointF(at, plot.top()), QPointF(at, plot.bottom()));
        painter->setPen(axisPen);
        painter->drawLine(QPointF(at, plot.bottom()), QPointF(at, plot.bottom() + tick));
        painter->drawText(QRectF(at - plot.width(), plot.bottom() + tick, 2 * plot.width(), frame.lineHeight),
                          Qt::AlignCenter, x.text(value, myLocale));
    }
    painter->drawLine(plot.topLeft(), plot.bottomLeft());
    painter->drawLine(plot.bottomLeft(), plot.bottomRight());
}

void SpinePlot::paintLabels(QPainter *painter, const Frame &frame, const QRectF &rect) const
{
    painter->setPen(myColors.text);
    const QRectF &plot = frame.plot;
    painter->drawText(QRectF(plot.left(), rect.bottom() - frame.lineHeight, plot.width(), frame.lineHeight),
                      Qt::AlignCenter, tr("pages"));
    painter->drawText(QRectF(plot.left(), frame.band.top() - 1.05 * frame.lineHeight, plot.width(), frame.lineHeight),
                      Qt::AlignLeft | Qt::AlignVCenter, tr("largest font size in pt"));
    painter->save();
    painter->translate(rect.left(), plot.center().y());
    painter->rotate(-90);
    painter->drawText(QRectF(-plot.height(), 0, 2 * plot.height(), frame.lineHeight), Qt::AlignCenter,
                      tr("spine width in mm"));
    painter->restore();
}

// One field for each font size; the number is left out where it has no room.
void SpinePlot::paintFontBand(QPainter *painter, const Frame &frame) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QList<SpineTable::FontRun> &runs = myTable.fontRuns();
    painter->fillRect(frame.band, myColors.band);
    for (qsizetype i = 0; i < runs.size(); ++i) {
        const bool isLast = i + 1 == runs.size();
        const qreal left = i == 0 ? frame.plot.left() : frame.x(myTable.row(runs.at(i).firstRow).pages);
        const qreal right = isLast ? frame.plot.right() : frame.x(myTable.row(runs.at(i + 1).firstRow).pages);
        const QRectF field(left, frame.band.top(), right - left, frame.band.height());
        const QString text = myLocale.toString(runs.at(i).fontSize);
        painter->setPen(myColors.text);
        if (metrics.horizontalAdvance(text) + 2 * frame.point <= field.width())
            painter->drawText(field, Qt::AlignCenter, text);
        if (i == 0)
            continue;
        painter->setPen(QPen(myColors.grid, 0.6 * frame.point, Qt::DashLine));
        painter->drawLine(QPointF(left, frame.band.top()), QPointF(left, frame.plot.bottom()));
    }
}

void SpinePlot::paintCurve(QPainter *painter, const Frame &frame, const QList<SpineRow> &steps) const
{
    QPainterPath path(frame.at(steps.constFirst()));
    for (const SpineRow &step : steps) {
        path.lineTo(frame.x(step.pages), path.currentPosition().y());
        path.lineTo(frame.at(step));
    }
    painter->setPen(QPen(myColors.curve, 1.2 * frame.point, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(path);
}

// A dot for each page count that can be chosen, as long as there is room between them.
void SpinePlot::paintCounts(QPainter *painter, const Frame &frame) const
{
    const int count = myTable.rowCount();
    if (count > 1 && frame.plot.width() / count < DOT_DISTANCE * frame.point)
        return;
    const qreal radius = (count > 1 ? DOT_RADIUS : 2 * DOT_RADIUS) * frame.point;
    painter->setPen(QPen(myColors.curve, 0.8 * frame.point));
    painter->setBrush(myColors.background);
    for (int i = 0; i < count; ++i)
        painter->drawEllipse(frame.at(myTable.row(i)), radius, radius);
}

void SpinePlot::paintMarker(QPainter *painter, const Frame &frame) const
{
    const QPointF at = frame.at(myTable.row(myMarkedRow));
    painter->setPen(QPen(myColors.marker, 0.8 * frame.point, Qt::DashLine));
    painter->drawLine(QPointF(at.x(), frame.plot.bottom()), at);
    painter->drawLine(QPointF(frame.plot.left(), at.y()), at);
    painter->setPen(Qt::NoPen);
    painter->setBrush(myColors.marker);
    painter->drawEllipse(at, 2.5 * frame.point, 2.5 * frame.point);
}
