#include "SpinePlot.h"

#include "PlotFrame.h"
#include "SpineFont.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

/// More steps than this cannot be told apart on paper.
constexpr int MOST_STEPS = 800;
/// In points: the least distance at which the dots of two page counts can be told apart.
constexpr qreal DOT_DISTANCE = 3.5;
constexpr qreal DOT_RADIUS = 1.1;

}

int SpinePlot::rowAt(const QPointF &place, const QRectF &rect, QPaintDevice *device) const
{
    if (myTable.rowCount() == 0)
        return -1;
    const PlotFrame frame(myTable, myLocale, !myTitle.isEmpty(), rect, device);
    return frame.hasRoom() ? myTable.rowNear(frame.pages(place.x())) : -1;
}

QString SpinePlot::reading(int row) const
{
    const SpineRow values = myTable.row(row);
    return tr("page count %1 · %2 mm · font up to %3 pt")
            .arg(myLocale.toString(values.pages), myLocale.toString(values.width, 'f', 2),
                 myLocale.toString(values.fontSize));
}

void SpinePlot::paint(QPainter *painter, const QRectF &rect) const
{
    painter->fillRect(rect, myColors.background);
    if (myTable.rowCount() == 0)
        return;
    const PlotFrame frame(myTable, myLocale, !myTitle.isEmpty(), rect, painter->device());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintTitle(painter, frame);
    if (frame.hasRoom()) {
        painter->setFont(textFont(TEXT_SIZE));
        paintRows(painter, frame);
        paintColumns(painter, frame);
        paintLabels(painter, frame);
        paintFontBand(painter, frame);
        paintCurve(painter, frame);
        paintCounts(painter, frame);
        paintMarker(painter, frame);
        paintCrossHair(painter, frame);
    }
    painter->restore();
}

void SpinePlot::paintTitle(QPainter *painter, const PlotFrame &frame) const
{
    painter->setFont(textFont(TITLE_SIZE, true));
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QRectF &inner = frame.inner();
    painter->setPen(myColors.text);
    painter->drawText(QPointF(inner.left(), inner.top() + metrics.ascent()),
                      metrics.elidedText(myTitle, Qt::ElideRight, inner.width()));
}

// The vertical axis, with a line across for each of its values.
void SpinePlot::paintRows(QPainter *painter, const PlotFrame &frame) const
{
    const qreal tick = 3 * frame.point();
    const qreal line = frame.lineHeight();
    const QRectF &plot = frame.plot();
    const AxisTicks &ticks = frame.yTicks();
    for (const qreal value : ticks.values(ticks.first(), ticks.last())) {
        const qreal at = frame.y(value);
        painter->setPen(QPen(myColors.grid, 0.4 * frame.point()));
        painter->drawLine(QPointF(plot.left(), at), QPointF(plot.right(), at));
        painter->setPen(QPen(myColors.text, 0.6 * frame.point()));
        painter->drawLine(QPointF(plot.left() - tick, at), QPointF(plot.left(), at));
        painter->drawText(
                QRectF(plot.left() - tick - plot.width(), at - line / 2, plot.width() - 2 * frame.point(), line),
                Qt::AlignRight | Qt::AlignVCenter, ticks.text(value, myLocale));
    }
    painter->drawLine(plot.topLeft(), plot.bottomLeft());
}

// The horizontal axis, likewise.
void SpinePlot::paintColumns(QPainter *painter, const PlotFrame &frame) const
{
    const qreal tick = 3 * frame.point();
    const QRectF &plot = frame.plot();
    const AxisTicks &ticks = frame.xTicks();
    const QPen axisPen(myColors.text, 0.6 * frame.point());
    for (const qreal value : ticks.values(frame.left(), frame.right())) {
        const qreal at = frame.x(value);
        painter->setPen(QPen(myColors.grid, 0.4 * frame.point()));
        painter->drawLine(QPointF(at, plot.top()), QPointF(at, plot.bottom()));
        painter->setPen(axisPen);
        painter->drawLine(QPointF(at, plot.bottom()), QPointF(at, plot.bottom() + tick));
        painter->drawText(QRectF(at - plot.width(), plot.bottom() + tick, 2 * plot.width(), frame.lineHeight()),
                          Qt::AlignCenter, ticks.text(value, myLocale));
    }
    painter->setPen(axisPen);
    painter->drawLine(plot.bottomLeft(), plot.bottomRight());
}

void SpinePlot::paintLabels(QPainter *painter, const PlotFrame &frame) const
{
    painter->setPen(myColors.text);
    const QRectF &plot = frame.plot();
    const qreal line = frame.lineHeight();
    painter->drawText(QRectF(plot.left(), frame.inner().bottom() - line, plot.width(), line), Qt::AlignCenter,
                      tr("pages"));
    const QString family = SpineFont::family();
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QString fonts = tr("largest font size in pt");
    const QString named = u"%1 (%2)"_s.arg(fonts, family);
    const bool hasRoom = !family.isEmpty() && metrics.horizontalAdvance(named) <= plot.width();
    painter->drawText(QRectF(plot.left(), frame.band().top() - 1.05 * line, plot.width(), line),
                      Qt::AlignLeft | Qt::AlignVCenter, hasRoom ? named : fonts);
    paintWidthLabel(painter, frame);
}

// Beside the middle of the axis, unless it would then leave the drawing; where the drawing is too low for it, only the
// unit is told.
void SpinePlot::paintWidthLabel(QPainter *painter, const PlotFrame &frame) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QRectF &inner = frame.inner();
    QString text = tr("spine width in mm");
    if (metrics.horizontalAdvance(text) > inner.height())
        text = tr("mm");
    const qreal length = metrics.horizontalAdvance(text) + 2 * frame.point();
    const qreal top = qMax(inner.top(), qMin(frame.plot().center().y(), inner.bottom() - length / 2) - length / 2);
    painter->save();
    painter->translate(inner.left(), top + length);
    painter->rotate(-90);
    painter->drawText(QRectF(0, 0, length, frame.lineHeight()), Qt::AlignCenter | Qt::TextDontClip, text);
    painter->restore();
}

// One field for each font size; the number is left out where it has no room.
void SpinePlot::paintFontBand(QPainter *painter, const PlotFrame &frame) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QList<SpineTable::FontRun> &runs = myTable.fontRuns();
    painter->fillRect(frame.band(), myColors.band);
    for (qsizetype i = 0; i < runs.size(); ++i) {
        const bool isLast = i + 1 == runs.size();
        const qreal left = i == 0 ? frame.plot().left() : frame.x(myTable.row(runs.at(i).firstRow).pages);
        const qreal right = isLast ? frame.plot().right() : frame.x(myTable.row(runs.at(i + 1).firstRow).pages);
        const QRectF field(left, frame.band().top(), right - left, frame.band().height());
        const QString text = myLocale.toString(runs.at(i).fontSize);
        painter->setPen(myColors.text);
        if (metrics.horizontalAdvance(text) + 2 * frame.point() <= field.width())
            painter->drawText(field, Qt::AlignCenter, text);
        if (i == 0)
            continue;
        painter->setPen(QPen(myColors.grid, 0.6 * frame.point(), Qt::DashLine));
        painter->drawLine(QPointF(left, frame.band().top()), QPointF(left, frame.plot().bottom()));
    }
}

void SpinePlot::paintCurve(QPainter *painter, const PlotFrame &frame) const
{
    const QList<SpineRow> steps = myTable.steps(MOST_STEPS);
    QPainterPath path(frame.at(steps.constFirst()));
    for (const SpineRow &step : steps) {
        path.lineTo(frame.x(step.pages), path.currentPosition().y());
        path.lineTo(frame.at(step));
    }
    painter->setPen(QPen(myColors.curve, 1.2 * frame.point(), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(path);
}

// A dot for each page count that can be chosen, as long as there is room between them.
void SpinePlot::paintCounts(QPainter *painter, const PlotFrame &frame) const
{
    const int count = myTable.rowCount();
    if (count > 1 && frame.plot().width() / count < DOT_DISTANCE * frame.point())
        return;
    const qreal radius = (count > 1 ? DOT_RADIUS : 2 * DOT_RADIUS) * frame.point();
    painter->setPen(QPen(myColors.curve, 0.8 * frame.point()));
    painter->setBrush(myColors.background);
    for (int i = 0; i < count; ++i)
        painter->drawEllipse(frame.at(myTable.row(i)), radius, radius);
}

void SpinePlot::paintMarker(QPainter *painter, const PlotFrame &frame) const
{
    if (myMarkedRow < 0 || myMarkedRow >= myTable.rowCount())
        return;
    const QPointF at = frame.at(myTable.row(myMarkedRow));
    painter->setPen(QPen(myColors.marker, 0.8 * frame.point(), Qt::DashLine));
    painter->drawLine(QPointF(at.x(), frame.plot().bottom()), at);
    painter->drawLine(QPointF(frame.plot().left(), at.y()), at);
    painter->setPen(Qt::NoPen);
    painter->setBrush(myColors.marker);
    painter->drawEllipse(at, 2.5 * frame.point(), 2.5 * frame.point());
}

void SpinePlot::paintCrossHair(QPainter *painter, const PlotFrame &frame) const
{
    if (myCrossRow < 0 || myCrossRow >= myTable.rowCount())
        return;
    const QPointF at = frame.at(myTable.row(myCrossRow));
    painter->setPen(QPen(myColors.text, 0.6 * frame.point()));
    painter->setBrush(Qt::NoBrush);
    painter->drawLine(QPointF(at.x(), frame.band().top()), QPointF(at.x(), frame.plot().bottom()));
    painter->drawLine(QPointF(frame.plot().left(), at.y()), QPointF(frame.plot().right(), at.y()));
    painter->drawEllipse(at, 3.5 * frame.point(), 3.5 * frame.point());
    paintReading(painter, frame, at);
}

// Beside the crossing on the side that has more room, where it hides least of the curve.
void SpinePlot::paintReading(QPainter *painter, const PlotFrame &frame, const QPointF &at) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QString text = reading(myCrossRow);
    const qreal gap = 4 * frame.point();
    QRectF box(0, 0, metrics.horizontalAdvance(text) + 2 * gap, frame.lineHeight() + gap);
    const bool isLeft = at.x() < frame.plot().center().x();
    box.moveLeft(isLeft ? at.x() + gap : at.x() - gap - box.width());
    box.moveLeft(qMax(frame.inner().left(), qMin(box.left(), frame.inner().right() - box.width())));
    const bool isBelow = at.y() < frame.plot().center().y();
    box.moveTop(isBelow ? at.y() + gap : at.y() - gap - box.height());
    painter->setPen(QPen(myColors.grid, 0.6 * frame.point()));
    painter->setBrush(myColors.background);
    painter->drawRect(box);
    painter->setPen(myColors.text);
    painter->drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
}
