#include "SpineCurve.h"

#include "PaletteColors.h"

#include <QPainter>

using namespace Qt::StringLiterals;

SpineCurve::SpineCurve(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"spineCurve"_s);
    setAccessibleName(tr("Spine width over the page count"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SpineCurve::setTable(const SpineTable &table)
{
    myPlot = SpinePlot(table);
    myPlot.setLocale(QLocale());
    update();
}

void SpineCurve::setRow(int row)
{
    myPlot.setMarkedRow(row);
    update();
}

void SpineCurve::paintEvent(QPaintEvent *)
{
    const PaletteColors shades(palette());
    PlotColors colors;
    colors.background = shades.shade(0);
    colors.text = shades.shade(1);
    colors.grid = shades.shade(0.2);
    colors.band = shades.shade(0.08);
    colors.curve = shades.accent();
    colors.marker = shades.shade(0.8);
    myPlot.setColors(colors);
    QPainter painter(this);
    myPlot.paint(&painter, rect());
}
