#ifndef SPINEPLOT_H
#define SPINEPLOT_H

#include "Drawing.h"
#include "SpineTable.h"

#include <QColor>
#include <QCoreApplication>
#include <QLocale>
#include <QRectF>
#include <QString>

class PlotFrame;
class QPaintDevice;
class QPainter;

/// The colours of a plot. By default for white paper.
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
class SpinePlot : public Drawing
{
    Q_DECLARE_TR_FUNCTIONS(SpinePlot)

public:
    static constexpr qreal TEXT_SIZE = 8; ///< In points.
    static constexpr qreal TITLE_SIZE = 10.5; ///< In points.

    explicit SpinePlot(const SpineTable &table = SpineTable()) : myTable(table) { }

    /// Above the plot; none by default.
    void setTitle(const QString &title) { myTitle = title; }
    void setColors(const PlotColors &colors) { myColors = colors; }
    /// The locale that numbers are written in; with a decimal point by default.
    void setLocale(const QLocale &locale) { myLocale = locale; }
    /// The row of the table that is pointed out; none by default, which is -1.
    void setMarkedRow(int row) { myMarkedRow = row; }
    /// The row that gets a cross hair and its values as a text; none by default, which is -1.
    void setRowUnderCrossHair(int row) { myCrossRow = row; }

    const SpineTable &table() const { return myTable; }
    /// The row nearest to a place, painted into the rectangle on the device; -1 without rows or room.
    int rowAt(const QPointF &place, const QRectF &rect, QPaintDevice *device) const;
    /// Page count, width and font size of a row as a text.
    QString reading(int row) const;
    /// Fills the rectangle. Without rows only the background is drawn.
    void paint(QPainter *painter, const QRectF &rect) const;

    QString title() const override { return myTitle; }
    /// As wide as a column of text on A4. It has no scale, so it is as large as the paper allows.
    QSizeF sheetSize(int reduction) const override { return QSizeF(160, 100) / reduction; }
    void paint(QPainter *painter, const QRectF &sheet, int) const override { paint(painter, sheet); }

private:
    void paintTitle(QPainter *painter, const PlotFrame &frame) const;
    void paintRows(QPainter *painter, const PlotFrame &frame) const;
    void paintColumns(QPainter *painter, const PlotFrame &frame) const;
    void paintLabels(QPainter *painter, const PlotFrame &frame) const;
    void paintWidthLabel(QPainter *painter, const PlotFrame &frame) const;
    void paintFontBand(QPainter *painter, const PlotFrame &frame) const;
    void paintCurve(QPainter *painter, const PlotFrame &frame) const;
    void paintCounts(QPainter *painter, const PlotFrame &frame) const;
    void paintMarker(QPainter *painter, const PlotFrame &frame) const;
    void paintCrossHair(QPainter *painter, const PlotFrame &frame) const;
    void paintReading(QPainter *painter, const PlotFrame &frame, const QPointF &at) const;

    SpineTable myTable;
    QString myTitle;
    PlotColors myColors;
    QLocale myLocale = QLocale::c();
    int myMarkedRow = -1;
    int myCrossRow = -1;
};

#endif
