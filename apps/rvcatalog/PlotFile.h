#ifndef PLOTFILE_H
#define PLOTFILE_H

#include <QString>

class SpinePlot;

/// A picture file for print: as wide as a text column, white, as an SVG drawing or a PNG picture of 300 dots an inch.
class PlotFile
{
public:
    /// The end of the name, .png or .svg in any letter case, says what it becomes.
    explicit PlotFile(const QString &fileName) : myFileName(fileName) { }

    QString fileName() const { return myFileName; }
    /// True for a name with one of the two ends.
    bool isSupported() const { return isPng() || isSvg(); }
    /// Replaces the file. Returns why it could not be written; a null text when it was.
    QString write(const SpinePlot &plot, const QString &title) const;

private:
    bool isPng() const;
    bool isSvg() const;

    QString myFileName;
};

#endif
