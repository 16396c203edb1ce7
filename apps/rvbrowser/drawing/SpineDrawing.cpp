#include "SpineDrawing.h"

#include "PaletteColors.h"

#include <RVFontCreator.h>

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal MARGIN = 8; // pixels
/// A page is laid out in tenths of a millimetre, and a pixel of a font is one of them.
constexpr qreal PIXELS_PER_MILLIMETRE = 10;
/// The widest spine fills the drawing up to here, but a narrow one is not blown up.
constexpr qreal MOST_PIXELS = 6; // a millimetre
/// In millimetres: next to a spine that is wider than this, which no press makes, all others could not be seen.
constexpr qreal THICK_BOOK = 100;

}

SpineDrawing::SpineDrawing(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"spineDrawing"_s);
    setAccessibleName(tr("Spine, drawn to scale"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void SpineDrawing::setSpine(const SpineRow &row, qreal sideWidth, qreal widest)
{
    myRow = row;
    mySideWidth = sideWidth;
    myWidest = widest;
    setAccessibleDescription(tr("%1 mm wide").arg(QLocale().toString(row.width, 'f', 1)));
    update();
}

void SpineDrawing::setTitle(const QString &title)
{
    myTitle = title;
    update();
}

void SpineDrawing::clear()
{
    setSpine(SpineRow(), 0, 0);
}

void SpineDrawing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const PaletteColors colors(palette());
    painter.fillRect(rect(), palette().base());
    if (myRow.width <= 0 || myWidest <= 0)
        return;
    const qreal widest = qMin(myWidest, qMax(myRow.width, THICK_BOOK));
    const qreal scale = qMin(MOST_PIXELS, (width() - 2 * MARGIN) / widest);
    const qreal bottom = height() - 2 * MARGIN - 2 * fontMetrics().height();
    const QRectF spine(width() / 2.0 - myRow.width * scale / 2, MARGIN, myRow.width * scale, bottom - MARGIN);

    painter.setPen(colors.shade(0.6));
    painter.setBrush(colors.shade(0.12));
    painter.drawRect(spine);
    painter.setPen(QPen(colors.shade(0.5), 1, Qt::DotLine));
    for (const qreal x : { spine.left() + mySideWidth * scale, spine.right() - mySideWidth * scale })
        painter.drawLine(QPointF(x, spine.top()), QPointF(x, spine.bottom()));
    paintTitle(&painter, spine, scale);
    paintWidth(&painter, spine);
}

void SpineDrawing::paintTitle(QPainter *painter, const QRectF &spine, qreal scale) const
{
    const RVFontCreator *fonts = RVFontCreator::instance();
    const QFont font = fonts->createFont(fonts->defaultFontFamily(), myRow.fontSize);
    const QFontMetricsF metrics(font);
    const qreal zoom = scale / PIXELS_PER_MILLIMETRE;
    painter->save();
    painter->translate(spine.center());
    painter->rotate(90);
    painter->scale(zoom, zoom);
    painter->setFont(font);
    painter->setPen(palette().color(QPalette::Text));
    const QSizeF room(spine.height() / zoom, spine.width() / zoom);
    painter->drawText(QRectF(-room.width() / 2, -room.height() / 2, room.width(), room.height()), Qt::AlignCenter,
                      metrics.elidedText(myTitle, Qt::ElideRight, room.width() - 2 * metrics.averageCharWidth()));
    painter->restore();
}

// The width below the spine, between two arrows.
void SpineDrawing::paintWidth(QPainter *painter, const QRectF &spine) const
{
    const qreal y = spine.bottom() + MARGIN;
    painter->setPen(PaletteColors(palette()).shade(0.7));
    painter->drawLine(QPointF(spine.left(), y), QPointF(spine.right(), y));
    for (const qreal x : { spine.left(), spine.right() })
        painter->drawLine(QPointF(x, y - 4), QPointF(x, y + 4));
    painter->setPen(palette().color(QPalette::Text));
    const QString text = tr("%1 mm").arg(QLocale().toString(myRow.width, 'f', 1));
    painter->drawText(QRectF(0, y + 4, width(), fontMetrics().height()), Qt::AlignCenter, text);
}
