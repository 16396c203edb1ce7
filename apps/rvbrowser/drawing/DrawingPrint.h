#ifndef DRAWINGPRINT_H
#define DRAWINGPRINT_H

#include <memory>

class Drawing;
class QPrinter;

/// Puts a drawing on one sheet of paper: at its true size, or where the paper is too small for that reduced to the next
/// round scale, which the drawing tells.
class DrawingPrint
{
public:
    explicit DrawingPrint(const std::shared_ptr<Drawing> &drawing) : myDrawing(drawing) { }

    /// Gives the job the name of the drawing, and the paper the orientation that has more room for it.
    void setUp(QPrinter *printer) const;
    /// Prints the page, at the top and in the middle of what the printer can reach.
    void paint(QPrinter *printer) const;

private:
    std::shared_ptr<Drawing> myDrawing;
};

#endif
