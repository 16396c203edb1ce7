#ifndef SPINECURVE_H
#define SPINECURVE_H

#include "DrawingWidget.h"
#include "SpinePlot.h"

#include <optional>

/// The width of the spine over the page count, with the chosen count pointed out. Under the mouse, and at the chosen
/// count while the curve has the keyboard, a cross hair tells the values. A click and the keys of a slider choose.
class SpineCurve : public DrawingWidget
{
    Q_OBJECT

public:
    explicit SpineCurve(QWidget *parent = nullptr);

    /// @p title is that of the drawing when it leaves the window.
    void setTable(const SpineTable &table, const QString &title);
    /// The chosen row of the table; -1 for none. Emits nothing.
    void setRow(int row);
    int row() const { return myRow; }
    const SpineTable &table() const { return myPlot.table(); }
    /// The values of the chosen row as a text; empty where there is none.
    QString reading() const;

    std::unique_ptr<Drawing> drawing() const override;
    QSize sizeHint() const override { return { 380, 160 }; }
    QSize minimumSizeHint() const override { return { 240, 125 }; }

Q_SIGNALS:
    /// This row was clicked or walked to; setRow() makes it the chosen one.
    void rowWanted(int row);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    std::optional<int> rowAfter(int key) const;
    void setRowUnderMouse(int row);

    SpinePlot myPlot;
    QString myTitle;
    int myRow = -1;
    int myRowUnderMouse = -1;
};

#endif
