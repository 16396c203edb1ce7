#include "PagePicture.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Paper is white and ink is black with every palette.
constexpr QColor PAPER(0xff, 0xff, 0xff);
constexpr QColor BLEED(0xf6, 0xd5, 0xd5);
constexpr QColor CUT(0xb0, 0x60, 0x60);
constexpr QColor INK(0x20, 0x20, 0x20);
constexpr QColor WRONG(0xd0, 0x20, 0x20);
/// Widths of bars and gaps, as a pattern that looks like a barcode.
constexpr int BARS[] = { 2, 1, 1, 1, 3, 1, 1, 2, 1, 1, 2, 3, 1, 1, 1, 2, 3, 1, 2, 1, 1, 1, 2 };
constexpr qreal TENTHS_PER_MILLIMETRE = 10;
/// More barcodes of one page are drawn, but not listed.
constexpr int MOST_BARCODE_LINES = 6;
constexpr int LINES_BEFORE_BARCODES = 2;
/// In lines of text: between page and legend, and the symbol of a line with the gap behind it.
constexpr qreal LEGEND_GAP = 0.7;
constexpr qreal SYMBOL_WIDTH = 2;
/// Beside the page, as a part of the drawing.
constexpr qreal MOST_LEGEND = 0.7;
/// On the sheet, in millimetres.
constexpr qreal SHEET_LINE = 4.5;

QString millimetres(qreal tenths)
{
    return QLocale().toString(tenths / TENTHS_PER_MILLIMETRE, 'f', 1);
}

qreal pointOf(const QPainter *painter)
{
    return painter->device()->logicalDpiY() / 72.0;
}

}

/// The places of page and legend.
struct PagePicture::Layout
{
    QTransform transform; ///< of the page
    qreal scale;
    QRectF legend;
};

QList<RVBarcodeDefinition> PagePicture::barcodes() const
{
    QList<RVBarcodeDefinition> result;
    for (const RVBarcodeDefinition &barcode : myGeometry.barcodes()) {
        if (barcode.pageNr() == myNumber)
            result += barcode;
    }
    return result;
}

bool PagePicture::isInside(const RVBarcodeDefinition &barcode) const
{
    return QRectF(myGeometry.usableRect()).contains(myGeometry.barcodeRect(barcode));
}

QString PagePicture::barcodeText(const RVBarcodeDefinition &barcode) const
{
    const QRect rect = barcode.rect();
    const QString text = tr("barcode %1 × %2 mm at %3, %4")
                                 .arg(millimetres(rect.width()), millimetres(rect.height()), millimetres(rect.left()),
                                      millimetres(rect.top()));
    return isInside(barcode) ? text : tr("%1, outside of the trim").arg(text);
}

QStringList PagePicture::legend() const
{
    if (!myGeometry.isValid())
        return QStringList();
    const QSize size = myGeometry.usableSize();
    QStringList result { tr("trim %1 × %2 mm, assumed").arg(millimetres(size.width()), millimetres(size.height())),
                         tr("bleed %1 mm, assumed").arg(millimetres(myGeometry.bleed().top())) };
    for (const RVBarcodeDefinition &barcode : barcodes()) {
        if (result.size() < LINES_BEFORE_BARCODES + MOST_BARCODE_LINES)
            result += barcodeText(barcode);
    }
    return result;
}

// A barcode beside the page is a fault of the catalogue that should be seen.
QRectF PagePicture::extent() const
{
    QRectF result = myGeometry.totalRect();
    for (const RVBarcodeDefinition &barcode : barcodes())
        result |= myGeometry.barcodeRect(barcode);
    return result;
}

PagePicture::Layout PagePicture::layoutIn(const QRectF &room, const QRectF &legend, qreal line) const
{
    const QRectF shown = extent();
    const QRectF page = room.adjusted(0, 0, -line, -line); // sizes stand beside it
    const qreal scale = qMax(0.0, qMin(page.width() / shown.width(), page.height() / shown.height()));
    QTransform transform;
    transform.translate(page.center().x(), page.center().y());
    transform.scale(scale, scale);
    transform.translate(-shown.center().x(), -shown.center().y());
    return { transform, scale, legend };
}

// Beside the page or below it, wherever the page then becomes larger.
PagePicture::Layout PagePicture::fitting(const QRectF &rect, const QFontMetricsF &metrics) const
{
    const qreal line = metrics.height();
    const QStringList lines = legend();
    qreal width = 0;
    for (const QString &text : lines)
        width = qMax(width, metrics.horizontalAdvance(text));
    width = qMin(width + SYMBOL_WIDTH * line, MOST_LEGEND * rect.width());
    const qreal height = qreal(lines.size()) * line;
    const qreal gap = LEGEND_GAP * line;
    const QRectF right(rect.right() - width, rect.top(), width, rect.height());
    const QRectF below(rect.left(), rect.bottom() - height, rect.width(), height);
    const Layout beside = layoutIn(rect.adjusted(0, 0, -width - gap, 0), right, line);
    const Layout above = layoutIn(rect.adjusted(0, 0, 0, -height - gap), below, line);
    return beside.scale >= above.scale ? beside : above;
}

void PagePicture::paintFitting(QPainter *painter, const QRectF &rect) const
{
    if (!myGeometry.isValid())
        return;
    const Layout layout = fitting(rect, QFontMetricsF(painter->font(), painter->device()));
    paintPage(painter, layout.transform);
    paintLegend(painter, layout.legend, legend());
}

int PagePicture::barcodeAt(const QPointF &place, const QRectF &rect, const QFontMetricsF &metrics) const
{
    if (!myGeometry.isValid())
        return -1;
    const QTransform transform = fitting(rect, metrics).transform;
    const QList<RVBarcodeDefinition> shown = barcodes();
    for (qsizetype i = shown.size() - 1; i >= 0; --i) { // the last is on top
        if (transform.mapRect(myGeometry.barcodeRect(shown.at(i))).contains(place))
            return int(i);
    }
    return -1;
}

QString PagePicture::title() const
{
    return barcodes().isEmpty() ? tr("%1 page").arg(myName) : tr("%1 page %2").arg(myName, QString::number(myNumber));
}

QSizeF PagePicture::sheetSize(int reduction) const
{
    const QSizeF page = extent().size() / TENTHS_PER_MILLIMETRE / reduction;
    const qreal lines = qreal(legend().size()) + 3; // size, gap, scale
    return { std::ceil(qMax(LEAST_SHEET_WIDTH, page.width() + SHEET_LINE) + 2 * SHEET_MARGIN),
             std::ceil(page.height() + lines * SHEET_LINE + 2 * SHEET_MARGIN) };
}

void PagePicture::paint(QPainter *painter, const QRectF &sheet, int reduction) const
{
    painter->save();
    painter->fillRect(sheet, myColors.background);
    if (myGeometry.isValid()) {
        const qreal millimetre = sheet.height() / sheetSize(reduction).height();
        const qreal scale = millimetre / TENTHS_PER_MILLIMETRE / reduction;
        const qreal margin = SHEET_MARGIN * millimetre;
        const QRectF shown = extent();
        const QRectF texts = sheet.adjusted(margin, margin + shown.height() * scale + 2 * SHEET_LINE * millimetre,
                                            -margin, -margin);
        QTransform transform;
        transform.translate(sheet.center().x(), sheet.top() + margin);
        transform.scale(scale, scale);
        transform.translate(-shown.center().x(), -shown.top());
        painter->setFont(textFont(SHEET_TEXT_SIZE));
        paintPage(painter, transform);
        paintLegend(painter, texts,
                    legend() + QStringList { tr("%1, scale 1 : %2").arg(title(), QString::number(reduction)) });
    }
    painter->restore();
}

void PagePicture::paintPage(QPainter *painter, const QTransform &transform) const
{
    const qreal pen = 0.75 * pointOf(painter);
    const QRectF total = transform.mapRect(QRectF(myGeometry.totalRect()));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(CUT, pen));
    painter->setBrush(BLEED);
    painter->drawRect(total);
    painter->setPen(QPen(CUT, pen, Qt::DashLine));
    painter->setBrush(PAPER);
    painter->drawRect(transform.mapRect(QRectF(myGeometry.usableRect())));
    paintSizes(painter, total);
    for (const RVBarcodeDefinition &barcode : barcodes())
        paintBarcode(painter, transform.mapRect(myGeometry.barcodeRect(barcode)), isInside(barcode));
    painter->restore();
}

void PagePicture::paintSizes(QPainter *painter, const QRectF &page) const
{
    const qreal line = QFontMetricsF(painter->font(), painter->device()).height();
    const qreal gap = pointOf(painter);
    const QSize size = myGeometry.usableSize();
    const QRectF place(0, 0, 0, line); // texts may be longer than the page, so they are centred on a point
    const int alignment = Qt::AlignCenter | Qt::TextDontClip;
    painter->setPen(myColors.text);
    painter->drawText(place.translated(page.center().x(), page.bottom() + gap), alignment,
                      tr("%1 mm").arg(millimetres(size.width())));
    painter->save();
    painter->translate(page.right() + gap, page.center().y());
    painter->rotate(90);
    painter->drawText(place.translated(0, -line), alignment, tr("%1 mm").arg(millimetres(size.height())));
    painter->restore();
}

void PagePicture::paintBarcode(QPainter *painter, const QRectF &place, bool isInside) const
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
    painter->setPen(QPen(color, (isInside ? 0.4 : 1.1) * pointOf(painter)));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place);
}

void PagePicture::paintLegend(QPainter *painter, const QRectF &rect, const QStringList &lines) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const qreal line = metrics.height();
    for (int i = 0; i < lines.size(); ++i) {
        const QRectF place(rect.left(), rect.top() + i * line, rect.width(), line);
        QRectF text = place;
        text.setLeft(place.left() + SYMBOL_WIDTH * line);
        paintSymbol(painter, QRectF(place.left() + 0.1 * line, place.top() + 0.2 * line, 1.6 * line, 0.6 * line), i);
        painter->setPen(myColors.text);
        painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(lines.at(i), Qt::ElideRight, text.width()));
    }
}

// A piece of what the line of the legend speaks of.
void PagePicture::paintSymbol(QPainter *painter, const QRectF &rect, int line) const
{
    const qreal pen = 0.75 * pointOf(painter);
    const QList<RVBarcodeDefinition> shown = barcodes();
    const int barcode = line - LINES_BEFORE_BARCODES;
    if (line < LINES_BEFORE_BARCODES) {
        painter->setPen(QPen(CUT, pen, line == 0 ? Qt::DashLine : Qt::SolidLine));
        painter->setBrush(line == 0 ? PAPER : BLEED);
        painter->drawRect(rect);
    } else if (barcode < qMin(MOST_BARCODE_LINES, int(shown.size()))) {
        paintBarcode(painter, rect, isInside(shown.at(barcode)));
    }
}
