#include "PlotFile.h"

#include <SpinePlot.h>

#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// In millimetres: the width of a column of text on A4 and a height in keeping with it.
constexpr QSize PLOT_SIZE(160, 100);
constexpr qreal MILLIMETRES_PER_INCH = 25.4;
constexpr int PNG_DOTS_PER_INCH = 300;
/// So that a unit of the drawing is a tenth of a millimetre.
constexpr int SVG_DOTS_PER_INCH = 254;

QSize inDots(int dotsPerInch)
{
    return (QSizeF(PLOT_SIZE) * dotsPerInch / MILLIMETRES_PER_INCH).toSize();
}

bool writePng(QIODevice *device, const SpinePlot &plot)
{
    QImage image(inDots(PNG_DOTS_PER_INCH), QImage::Format_RGB32);
    const int dotsPerMeter = int(std::round(PNG_DOTS_PER_INCH * 1000 / MILLIMETRES_PER_INCH));
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QPainter painter(&image);
    plot.paint(&painter, image.rect());
    painter.end();
    return image.save(device, "PNG");
}

bool writeSvg(QIODevice *device, const SpinePlot &plot, const QString &title)
{
    QSvgGenerator generator;
    generator.setOutputDevice(device);
    generator.setResolution(SVG_DOTS_PER_INCH);
    generator.setSize(inDots(SVG_DOTS_PER_INCH));
    generator.setViewBox(QRect(QPoint(), inDots(SVG_DOTS_PER_INCH)));
    generator.setTitle(title.toHtmlEscaped()); // it is written as it stands
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    plot.paint(&painter, generator.viewBoxF());
    return painter.end();
}

}

QString PlotFile::write(const SpinePlot &plot, const QString &title) const
{
    QSaveFile file(myFileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const bool isDrawn = isPng() ? writePng(&file, plot) : writeSvg(&file, plot, title);
    if (!isDrawn)
        file.cancelWriting();
    return file.commit() ? QString() : file.errorString();
}

bool PlotFile::isPng() const
{
    return myFileName.endsWith(".png"_L1, Qt::CaseInsensitive);
}

bool PlotFile::isSvg() const
{
    return myFileName.endsWith(".svg"_L1, Qt::CaseInsensitive);
}
