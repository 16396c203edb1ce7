#ifndef DRAWINGWIDGET_H
#define DRAWINGWIDGET_H

#include <QWidget>

#include <memory>

class Drawing;
class DrawingMenu;
class QToolButton;
struct PlotColors;

/// A drawing in the window that can be copied, saved and printed: by its context menu, and by a small button in its
/// upper right corner.
class DrawingWidget : public QWidget
{
    Q_OBJECT

public:
    /// @p title names the drawing in menus.
    explicit DrawingWidget(const QString &title, QWidget *parent = nullptr);

    /// The drawing as it leaves the window, on white paper. Never null; it may be empty.
    virtual std::unique_ptr<Drawing> drawing() const = 0;
    /// Can be chosen from as long as the drawing is shown. Also for the menu of the window.
    DrawingMenu *menu() const { return myMenu; }

protected:
    static constexpr qreal MARGIN = 8; ///< Around the drawing, in pixels.

    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    /// The size of the button, which no drawing should cover.
    QSize buttonSize() const;
    /// Drawings in the window have the colours of the window.
    PlotColors windowColors() const;

private:
    DrawingMenu *myMenu;
    QToolButton *myButton;
};

#endif
