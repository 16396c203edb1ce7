#ifndef SPINEPLOT_H
#define SPINEPLOT_H

#include "SpineTable.h"

#include <QColor>
#include <QCoreApplication>
#include <QLocale>
#include <QRectF>
#include <QString>

class AxisTicks;
class QPainter;

/// What a plot is drawn with. By default for white paper.
struct PlotColors
{
    QColor background = Qt::white;
    QColor text = Qt::black;
    QColor grid { 0xd0, 0xd0, 0xd0 };
    QColor band { 0xee, 0xf1, 0xf5 };
    QColor curve { 0x1f, 0x4e, 0x8c };
    QColor marker { 0xc0, 0x39, 0x2b };
};

/**
 * Draws the width of a spine over the page count as a curve with visible steps, and the largest font size as a band
 * above it. Sizes of texts and lines are in points of the device, so the plot looks the same on screen and on paper.
 */
class SpinePlot
{
    Q_DECLARE_TR_FUNCTIONS(SpinePlot)

public:
    explicit SpinePlot(const SpineTable &table = SpineTable()) : myTable(table) { }

    /// Above the plot; none by default.
    void setTitle(const QString &title) { myTitle = title; }
    void setColors(const PlotColors &colors) { myColors = colors; }
    /// How numbers are written; with a decimal point by default.
    void setLocale(const QLocale &locale) { myLocale = locale; }
    /// The row of the table that is pointed out; none by default, which is -1.
    void setMarkedRow(int row) { myMarkedRow = row; }

    const SpineTable &table() const { return myTable; }
    /// Fills the rectangle. Without rows only the background is drawn.
    void paint(QPainter *painter, const QRectF &rect) const;

private:
    struct Frame;

    qreal paintTitle(QPainter *painter, const QRectF &rect) const;
    void paintGrid(QPainter *painter, const Frame &frame, const AxisTicks &x, const AxisTicks &y) const;
    void paintLabels(QPainter *painter, const Frame &frame, const QRectF &rect) const;
    void paintFontBand(QPainter *painter, const Frame &frame) const;
    void paintCurve(QPainter *painter, const Frame &frame, const QList<SpineRow> &steps) const;
    void paintCounts(QPainter *painter, const Frame &frame) const;
    void paintMarker(QPainter *painter, const Frame &frame) const;

    SpineTable myTable;
    QString myTitle;
    PlotColors myColors;
    QLocale myLocale = QLocale::c();
    int myMarkedRow = -1;
};

#endif
