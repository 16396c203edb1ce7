#ifndef DRAWINGEXPORT_H
#define DRAWINGEXPORT_H

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

class Drawing;

/// Makes files of a drawing, white as paper and to scale: a millimetre of an SVG drawing or a PDF page is one, unless
/// the drawing is larger than 700 mm and therefore reduced. A PNG picture has 300 dots an inch and knows it.
class DrawingExport
{
    Q_DECLARE_TR_FUNCTIONS(DrawingExport)

public:
    enum class Format {
        Svg,
        Png,
        Pdf,
    };

    /// The drawing must outlive this object.
    explicit DrawingExport(const Drawing &drawing);

    /// By the end of the name, .svg, .png or .pdf in any letter case; nothing for another one.
    static std::optional<Format> formatOf(const QString &fileName);

    QImage image() const;
    /// The content of a file.
    QByteArray content(Format format) const;
    /// Writes the file, or replaces it once it is complete. Returns why that could not be done, in the user's language;
    /// a null text when it was.
    QString write(const QString &fileName) const;

private:
    QByteArray svg() const;
    QByteArray png() const;
    QByteArray pdf() const;
    QRectF sheetInDots(int dotsPerInch) const;

    const Drawing &myDrawing;
    int myReduction;
};

#endif
