#ifndef SPINEDRAWING_H
#define SPINEDRAWING_H

#include "DrawingWidget.h"
#include "SpinePicture.h"

/// A piece of the spine, drawn to scale, with its title in the largest font size that fits. The scale is that of the
/// widest spine of the product, so the spine is seen to grow.
class SpineDrawing : public DrawingWidget
{
    Q_OBJECT

public:
    explicit SpineDrawing(QWidget *parent = nullptr);

    /// @p sideWidth is the width of each side, in millimetres; @p widest that of the widest spine.
    void setSpine(const SpineRow &row, qreal sideWidth, qreal widest);
    void setTitle(const QString &title);
    /// Draws nothing.
    void clear();

    std::unique_ptr<Drawing> drawing() const override { return std::make_unique<SpinePicture>(myPicture); }
    QSize sizeHint() const override { return { 130, 160 }; }
    QSize minimumSizeHint() const override { return { 90, 125 }; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SpinePicture myPicture;
    qreal myWidest = 0;
};

#endif
