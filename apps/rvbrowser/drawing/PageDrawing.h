#ifndef PAGEDRAWING_H
#define PAGEDRAWING_H

#include "PageGeometry.h"

#include <QTransform>
#include <QWidget>

/// A page drawn to scale, with bleed, usable area and the barcodes of one page number.
class PageDrawing : public QWidget
{
    Q_OBJECT

public:
    explicit PageDrawing(QWidget *parent = nullptr);

    void setPage(const PageGeometry &geometry);
    void setPageNumber(int number);

    QSize sizeHint() const override { return { 300, 160 }; }
    QSize minimumSizeHint() const override { return { 180, 140 }; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF extent() const;
    void paintSizes(QPainter *painter, const QRectF &page) const;
    void paintBarcode(QPainter *painter, const QRectF &place, bool isInside) const;

    PageGeometry myGeometry;
    int myNumber = 0;
};

#endif
