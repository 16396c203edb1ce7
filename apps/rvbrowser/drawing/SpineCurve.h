#ifndef SPINECURVE_H
#define SPINECURVE_H

#include "SpinePlot.h"

#include <QWidget>

/// The width of the spine over the page count, with the chosen count pointed out.
class SpineCurve : public QWidget
{
    Q_OBJECT

public:
    explicit SpineCurve(QWidget *parent = nullptr);

    void setTable(const SpineTable &table);
    void setRow(int row);

    QSize sizeHint() const override { return { 380, 160 }; }
    QSize minimumSizeHint() const override { return { 240, 125 }; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SpinePlot myPlot;
};

#endif
