#include "DrawingExport.h"

#include "Drawing.h"
#include "FileContent.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int PNG_DOTS_PER_INCH = 300;
/// At this resolution a unit of the drawing is a tenth of a millimetre.
constexpr int SVG_DOTS_PER_INCH = 254;
constexpr int PDF_DOTS_PER_INCH = 1270;
/// Stands for the title of the drawing while Qt writes it.
constexpr char TITLE[] = "title-of-the-drawing";
/// In millimetres. A picture of a larger sheet would take a quarter of a gigabyte.
constexpr QSizeF LARGEST_SHEET(700, 700);

}

DrawingExport::DrawingExport(const Drawing &drawing)
    : myDrawing(drawing),
      myReduction(drawing.reductionFor(LARGEST_SHEET))
{ }

std::optional<DrawingExport::Format> DrawingExport::formatOf(const QString &fileName)
{
    if (fileName.endsWith(".svg"_L1, Qt::CaseInsensitive))
        return Format::Svg;
    if (fileName.endsWith(".png"_L1, Qt::CaseInsensitive))
        return Format::Png;
    if (fileName.endsWith(".pdf"_L1, Qt::CaseInsensitive))
        return Format::Pdf;
    return std::nullopt;
}

QImage DrawingExport::image() const
{
    const QRectF sheet = sheetInDots(PNG_DOTS_PER_INCH);
    QImage image(sheet.size().toSize(), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::white); // the last pixel may be wider than the sheet
    const int dotsPerMeter = int(std::round(PNG_DOTS_PER_INCH * 1000 / Drawing::MILLIMETRES_PER_INCH));
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QPainter painter(&image);
    myDrawing.paint(&painter, sheet, myReduction);
    return image;
}

QByteArray DrawingExport::content(Format format) const
{
    switch (format) {
    case Format::Svg:
        return svg();
    case Format::Png:
        return png();
    case Format::Pdf:
        return pdf();
    }
    return QByteArray();
}

QString DrawingExport::write(const QString &fileName) const
{
    const std::optional<Format> format = formatOf(fileName);
    if (!format)
        return tr("the name of the file must end in .svg, .png or .pdf");
    const QByteArray bytes = content(*format);
    if (bytes.isEmpty())
        return tr("there is not enough memory for the drawing");
    return writeContent(fileName, bytes);
}

QByteArray DrawingExport::svg() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(SVG_DOTS_PER_INCH);
    const QRectF sheet = sheetInDots(SVG_DOTS_PER_INCH);
    generator.setSize(sheet.size().toSize());
    generator.setViewBox(QRect(QPoint(), sheet.size().toSize()));
    generator.setTitle(QString::fromLatin1(TITLE));
    QPainter painter(&generator);
    myDrawing.paint(&painter, sheet, myReduction);
    painter.end();
    // Qt 6.4 writes the title as it stands, later versions escape it.
    return QByteArray(buffer.data()).replace(TITLE, myDrawing.title().toHtmlEscaped().toUtf8());
}

QByteArray DrawingExport::png() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image().save(&buffer, "PNG");
    return buffer.data();
}

QByteArray DrawingExport::pdf() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PDF_DOTS_PER_INCH);
    writer.setTitle(myDrawing.title());
    const QPageSize size(myDrawing.sheetSize(myReduction), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
    QPainter painter(&writer);
    myDrawing.paint(&painter, sheetInDots(PDF_DOTS_PER_INCH), myReduction);
    painter.end();
    return buffer.data();
}

// Not rounded, as a drawing takes its scale from the sheet.
QRectF DrawingExport::sheetInDots(int dotsPerInch) const
{
    return { QPointF(), myDrawing.sheetSize(myReduction) * dotsPerInch / Drawing::MILLIMETRES_PER_INCH };
}
