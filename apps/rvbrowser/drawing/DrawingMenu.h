#ifndef DRAWINGMENU_H
#define DRAWINGMENU_H

#include <QMenu>

#include <memory>

class Drawing;
class DrawingWidget;

/// Copies, saves and prints one drawing of the window. No entry waits for an answer: dialogues are opened and left.
class DrawingMenu : public QMenu
{
    Q_OBJECT

public:
    DrawingMenu(const QString &title, DrawingWidget *widget);

    /// To the clipboard: as a picture of 300 dots an inch, as SVG and as PDF, of which the receiver takes one.
    void copy() const;
    /// Writes a file, whose name ends in .svg, .png or .pdf. Says what is wrong in a box where that is impossible.
    void save(const QString &fileName);

private:
    void chooseFile();
    void print();
    void preview();
    std::shared_ptr<Drawing> drawing() const;

    DrawingWidget *myWidget;
    QString myFolder; // of the last file
};

#endif
