#ifndef SPINEPICTURE_H
#define SPINEPICTURE_H

#include "Drawing.h"
#include "SpinePlot.h"

#include <QCoreApplication>

/// A piece of a spine to scale: its sides, its title in the largest font size that fits, and its width.
class SpinePicture : public Drawing
{
    Q_DECLARE_TR_FUNCTIONS(SpinePicture)

public:
    /// @p sideWidth is the width of each side, in millimetres.
    void setSpine(const SpineRow &row, qreal sideWidth);
    /// The text on the spine; the type of the product.
    void setText(const QString &text) { myText = text; }
    void setColors(const PlotColors &colors) { myColors = colors; }

    const SpineRow &spine() const { return myRow; }
    /// Fills the rectangle with the spine and, below, its width. Nothing where the spine has no width.
    void paintPiece(QPainter *painter, const QRectF &rect, qreal unitsPerMillimetre) const;

    QString title() const override;
    QSizeF sheetSize(int reduction) const override;
    void paint(QPainter *painter, const QRectF &sheet, int reduction) const override;

private:
    QString widthText() const;
    void paintText(QPainter *painter, const QRectF &spine, qreal unitsPerMillimetre) const;
    void paintWidth(QPainter *painter, const QRectF &spine, const QRectF &rect) const;

    SpineRow myRow;
    qreal mySideWidth = 0;
    QString myText;
    PlotColors myColors;
};

#endif
