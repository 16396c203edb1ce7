#ifndef PAGEDRAWING_H
#define PAGEDRAWING_H

#include "DrawingWidget.h"
#include "PagePicture.h"

/// A page drawn to scale, with bleed, trim and the barcodes of one page number. The mouse over a barcode tells its size
/// and place.
class PageDrawing : public DrawingWidget
{
    Q_OBJECT

public:
    explicit PageDrawing(QWidget *parent = nullptr);

    /// @p name is that of the product.
    void setPage(const PageGeometry &geometry, const QString &name);
    void setPageNumber(int number);

    std::unique_ptr<Drawing> drawing() const override { return std::make_unique<PagePicture>(myPicture); }
    QSize sizeHint() const override { return { 300, 160 }; }
    QSize minimumSizeHint() const override { return { 180, 140 }; }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF room() const;
    void showPicture();

    PageGeometry myGeometry;
    int myNumber = 0;
    QString myName;
    PagePicture myPicture;
};

#endif
