#include "DrawingPrint.h"

#include <Drawing.h>

#include <QPainter>
#include <QPrinter>

void DrawingPrint::setUp(QPrinter *printer) const
{
    const QSizeF sheet = myDrawing->sheetSize(1);
    printer->setDocName(myDrawing->title());
    printer->setPageOrientation(sheet.width() > sheet.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void DrawingPrint::paint(QPrinter *printer) const
{
    const QSizeF room = printer->pageRect(QPrinter::Millimeter).size();
    const int reduction = myDrawing->reductionFor(room);
    const qreal millimetre = printer->resolution() / Drawing::MILLIMETRES_PER_INCH;
    const QSizeF sheet = myDrawing->sheetSize(reduction) * millimetre;
    QPainter painter(printer);
    if (painter.isActive())
        myDrawing->paint(&painter, QRectF(QPointF((room.width() * millimetre - sheet.width()) / 2, 0), sheet),
                         reduction);
}
