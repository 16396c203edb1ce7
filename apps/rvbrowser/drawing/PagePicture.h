#ifndef PAGEPICTURE_H
#define PAGEPICTURE_H

#include "Drawing.h"
#include "PageGeometry.h"
#include "SpinePlot.h"

#include <QCoreApplication>
#include <QTransform>

class QFontMetricsF;

/// A page to scale, with bleed, trim and the barcodes of one page number, and a legend that gives their sizes and
/// places.
class PagePicture : public Drawing
{
    Q_DECLARE_TR_FUNCTIONS(PagePicture)

public:
    PagePicture() = default; ///< No page.
    PagePicture(const PageGeometry &geometry, int pageNumber) : myGeometry(geometry), myNumber(pageNumber) { }

    /// The product, for the title.
    void setProductName(const QString &name) { myName = name; }
    void setColors(const PlotColors &colors) { myColors = colors; }

    /// The barcodes of the page number, in the order of the catalogue.
    QList<RVBarcodeDefinition> barcodes() const;
    /// The lines of the legend: trim, bleed, then the barcodes.
    QStringList legend() const;
    /// Fits the page and its legend into the rectangle.
    void paintFitting(QPainter *painter, const QRectF &rect) const;
    /// The barcode at a place of a drawing that was fitted into the rectangle, as an index; -1 for none.
    int barcodeAt(const QPointF &place, const QRectF &rect, const QFontMetricsF &metrics) const;
    /// Size and place of a barcode, as a text.
    QString barcodeText(const RVBarcodeDefinition &barcode) const;

    QString title() const override;
    QSizeF sheetSize(int reduction) const override;
    void paint(QPainter *painter, const QRectF &sheet, int reduction) const override;

private:
    struct Layout;

    QRectF extent() const;
    bool isInside(const RVBarcodeDefinition &barcode) const;
    Layout fitting(const QRectF &rect, const QFontMetricsF &metrics) const;
    Layout layoutIn(const QRectF &room, const QRectF &legend, qreal line) const;
    void paintPage(QPainter *painter, const QTransform &transform) const;
    void paintSizes(QPainter *painter, const QRectF &page) const;
    void paintBarcode(QPainter *painter, const QRectF &place, bool isInside) const;
    void paintLegend(QPainter *painter, const QRectF &rect, const QStringList &lines) const;
    void paintSymbol(QPainter *painter, const QRectF &rect, int line) const;

    PageGeometry myGeometry;
    int myNumber = 0;
    QString myName;
    PlotColors myColors;
};

#endif
