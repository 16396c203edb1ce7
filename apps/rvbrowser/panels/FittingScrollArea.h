#ifndef FITTINGSCROLLAREA_H
#define FITTINGSCROLLAREA_H

#include <QScrollArea>

/// Has a content that is as wide as there is room, and as high as its broken lines need at that width.
class FittingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget *parent = nullptr);

    /// Lets the area be as high as its content where there is room, and scroll where there is not. It is never less
    /// high than the content or this many pixels, and never scrolls sideways.
    void setLeastHeight(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize contentSize() const; // at the width that there is
    void fit();

    int myLeastHeight = 0; // 0 where the height does not follow the content
};

#endif
