#include "PageDrawing.h"

#include "PaletteColors.h"

#include <QLocale>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// Paper is white and ink is black, whatever the palette.
constexpr QColor PAPER(0xff, 0xff, 0xff);
constexpr QColor BLEED(0xf6, 0xd5, 0xd5);
constexpr QColor CUT(0xb0, 0x60, 0x60);
constexpr QColor INK(0x20, 0x20, 0x20);
constexpr QColor WRONG(0xd0, 0x20, 0x20);
constexpr qreal MARGIN = 8; // pixels
/// Widths of bars and gaps, as a pattern that looks like a barcode.
constexpr int BARS[] = { 2, 1, 1, 1, 3, 1, 1, 2, 1, 1, 2, 3, 1, 1, 1, 2, 3, 1, 2, 1, 1, 1, 2 };

QString millimetres(int tenths)
{
    return QLocale().toString(tenths / 10.0, 'f', 1);
}

}

PageDrawing::PageDrawing(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"pageDrawing"_s);
    setAccessibleName(tr("Page with bleed, usable area and barcodes, drawn to scale"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PageDrawing::setPage(const PageGeometry &geometry)
{
    myGeometry = geometry;
    update();
}

void PageDrawing::setPageNumber(int number)
{
    myNumber = number;
    update();
}

// A barcode beside the page is a fault of the catalogue that should be seen.
QRectF PageDrawing::extent() const
{
    QRectF result = myGeometry.totalRect();
    for (const RVBarcodeDefinition &barcode : myGeometry.barcodes()) {
        if (barcode.pageNr() == myNumber)
            result |= myGeometry.barcodeRect(barcode);
    }
    return result;
}

void PageDrawing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    if (!myGeometry.isValid())
        return;
    const qreal line = fontMetrics().height();
    const QRectF room = QRectF(rect()).adjusted(MARGIN, MARGIN, -MARGIN - line, -MARGIN - line);
    const QRectF shown = extent();
    const qreal scale = qMin(room.width() / shown.width(), room.height() / shown.height());
    QTransform transform;
    transform.translate(room.center().x(), room.center().y());
    transform.scale(scale, scale);
    transform.translate(-shown.center().x(), -shown.center().y());

    const QRectF total = transform.mapRect(QRectF(myGeometry.totalRect()));
    const QRectF usable = transform.mapRect(QRectF(myGeometry.usableRect()));
    painter.setPen(QPen(CUT, 1));
    painter.setBrush(BLEED);
    painter.drawRect(total);
    painter.setPen(QPen(CUT, 1, Qt::DashLine));
    painter.setBrush(PAPER);
    painter.drawRect(usable);
    paintSizes(&painter, total);
    for (const RVBarcodeDefinition &barcode : myGeometry.barcodes()) {
        if (barcode.pageNr() != myNumber)
            continue;
        const QRectF place = myGeometry.barcodeRect(barcode);
        paintBarcode(&painter, transform.mapRect(place), QRectF(myGeometry.usableRect()).contains(place));
    }
}

void PageDrawing::paintSizes(QPainter *painter, const QRectF &page) const
{
    const qreal line = fontMetrics().height();
    painter->setPen(palette().color(QPalette::Text));
    painter->drawText(QRectF(page.center().x() - width(), page.bottom() + 2, 2 * width(), line), Qt::AlignCenter,
                      tr("%1 mm").arg(millimetres(myGeometry.usableSize().width())));
    painter->save();
    painter->translate(page.right() + MARGIN / 2, page.center().y());
    painter->rotate(90);
    painter->drawText(QRectF(-height(), -line, 2 * height(), line), Qt::AlignCenter,
                      tr("%1 mm").arg(millimetres(myGeometry.usableSize().height())));
    painter->restore();
}

void PageDrawing::paintBarcode(QPainter *painter, const QRectF &place, bool isInside) const
{
    const QColor color = isInside ? INK : WRONG;
    int total = 0;
    for (const int bar : BARS)
        total += bar;
    painter->fillRect(place, PAPER);
    qreal x = place.left();
    bool isBar = true;
    for (const int bar : BARS) {
        const qreal next = x + place.width() * bar / total;
        if (isBar)
            painter->fillRect(QRectF(x, place.top(), next - x, place.height()), color);
        x = next;
        isBar = !isBar;
    }
    painter->setPen(QPen(color, isInside ? 0.5 : 1.5));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place);
}
