#include "SpinePicture.h"

#include "SpineFont.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPaintDevice>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

/// A page is laid out in tenths of a millimetre, and a pixel of a font is one of them.
constexpr qreal PIXELS_PER_MILLIMETRE = 10;
// The sheet, in millimetres.
constexpr qreal PIECE_HEIGHT = 120;
constexpr qreal LEAST_PIECE_HEIGHT = 20;
constexpr qreal TEXTS_HEIGHT = 24;

}

void SpinePicture::setSpine(const SpineRow &row, qreal sideWidth)
{
    myRow = row;
    mySideWidth = sideWidth;
}

QString SpinePicture::title() const
{
    return tr("%1 spine, page count %2").arg(myText, QString::number(myRow.pages));
}

QSizeF SpinePicture::sheetSize(int reduction) const
{
    return { qMax(LEAST_SHEET_WIDTH, myRow.width / reduction + 2 * SHEET_MARGIN),
             SHEET_MARGIN + qMax(LEAST_PIECE_HEIGHT, PIECE_HEIGHT / reduction) + TEXTS_HEIGHT };
}

void SpinePicture::paint(QPainter *painter, const QRectF &sheet, int reduction) const
{
    const qreal millimetre = sheet.height() / sheetSize(reduction).height();
    const qreal margin = SHEET_MARGIN * millimetre;
    painter->save();
    painter->fillRect(sheet, myColors.background);
    painter->setFont(textFont(SHEET_TEXT_SIZE));
    const qreal line = QFontMetricsF(painter->font(), painter->device()).height();
    const QRectF texts(sheet.left(), sheet.bottom() - 2.5 * line, sheet.width(), line);
    paintPiece(painter, sheet.adjusted(0, margin, 0, -3 * line), millimetre / reduction);
    painter->setPen(myColors.text);
    painter->drawText(
            texts, Qt::AlignCenter | Qt::TextDontClip,
            tr("page count %1 · font up to %2 pt %3")
                    .arg(QLocale().toString(myRow.pages), QLocale().toString(myRow.fontSize), SpineFont::family()));
    painter->drawText(texts.translated(0, line), Qt::AlignCenter, tr("scale 1 : %1").arg(reduction));
    painter->restore();
}

void SpinePicture::paintPiece(QPainter *painter, const QRectF &rect, qreal unitsPerMillimetre) const
{
    if (myRow.width <= 0)
        return;
    const qreal point = painter->device()->logicalDpiY() / 72.0;
    const qreal line = QFontMetricsF(painter->font(), painter->device()).height();
    const qreal width = myRow.width * unitsPerMillimetre;
    const QRectF spine(rect.center().x() - width / 2, rect.top(), width, rect.height() - 2 * line - 6 * point);
    const qreal side = mySideWidth * unitsPerMillimetre;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(myColors.marker, 0.75 * point));
    painter->setBrush(myColors.band);
    painter->drawRect(spine);
    painter->setPen(QPen(myColors.marker, 0.75 * point, Qt::DotLine));
    for (const qreal x : { spine.left() + side, spine.right() - side })
        painter->drawLine(QPointF(x, spine.top()), QPointF(x, spine.bottom()));
    paintText(painter, spine, unitsPerMillimetre);
    paintWidth(painter, spine, rect);
    painter->restore();
}

void SpinePicture::paintText(QPainter *painter, const QRectF &spine, qreal unitsPerMillimetre) const
{
    const QFont font = SpineFont::font(myRow.fontSize);
    const QFontMetricsF metrics(font);
    const qreal zoom = unitsPerMillimetre / PIXELS_PER_MILLIMETRE;
    painter->save();
    painter->translate(spine.center());
    painter->rotate(90);
    painter->scale(zoom, zoom);
    painter->setFont(font);
    painter->setPen(myColors.text);
    QRectF room(QPointF(), spine.size().transposed() / zoom);
    room.moveCenter(QPointF());
    painter->drawText(room, Qt::AlignCenter,
                      metrics.elidedText(myText, Qt::ElideRight, room.width() - 2 * metrics.averageCharWidth()));
    painter->restore();
}

// Below the spine, between two arrows.
void SpinePicture::paintWidth(QPainter *painter, const QRectF &spine, const QRectF &rect) const
{
    const qreal point = painter->device()->logicalDpiY() / 72.0;
    const qreal y = spine.bottom() + 6 * point;
    painter->setPen(QPen(myColors.text, 0.75 * point));
    painter->drawLine(QPointF(spine.left(), y), QPointF(spine.right(), y));
    for (const qreal x : { spine.left(), spine.right() })
        painter->drawLine(QPointF(x, y - 3 * point), QPointF(x, y + 3 * point));
    painter->drawText(QRectF(rect.left(), y + 3 * point, rect.width(),
                             QFontMetricsF(painter->font(), painter->device()).height()),
                      Qt::AlignCenter, widthText());
}

QString SpinePicture::widthText() const
{
    return tr("%1 mm").arg(QLocale().toString(myRow.width, 'f', 1));
}
