#ifndef FITTINGSCROLLAREA_H
#define FITTINGSCROLLAREA_H

#include <QScrollArea>

#include <optional>

/// A scroll area whose content is as wide as there is room, and as high as its broken lines need at that width.
class FittingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget *parent = nullptr);

    /// Makes the area as high as its content if there is room, and lets it scroll otherwise. It is never less high than
    /// its content or than @p height, in pixels, and never scrolls sideways.
    void setLeastHeight(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize contentSize() const; // at the width that there is
    void fit();

    std::optional<int> myLeastHeight; // none if the height does not follow the content
};

#endif
