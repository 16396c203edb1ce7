#include "SpineDrawing.h"

#include <QLocale>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

/// The widest spine fills the drawing up to here, but a narrow one is not blown up.
constexpr qreal MOST_PIXELS = 6; // a millimetre
/// In millimetres: next to a spine that is wider than this, which no press makes, all others could not be seen.
constexpr qreal THICK_BOOK = 100;

}

SpineDrawing::SpineDrawing(QWidget *parent) : DrawingWidget(tr("S&pine"), parent)
{
    setObjectName(u"spineDrawing"_s);
    setAccessibleName(tr("Spine, drawn to scale"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void SpineDrawing::setSpine(const SpineRow &row, qreal sideWidth, qreal widest)
{
    myPicture.setSpine(row, sideWidth);
    myWidest = widest;
    setAccessibleDescription(tr("%1 mm wide").arg(QLocale().toString(row.width, 'f', 1)));
    update();
}

void SpineDrawing::setTitle(const QString &title)
{
    myPicture.setText(title);
    update();
}

void SpineDrawing::clear()
{
    setSpine(SpineRow(), {}, {});
}

void SpineDrawing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const qreal width = myPicture.spine().width;
    const qreal widest = qMin(myWidest, qMax(width, THICK_BOOK));
    const qreal scale = qMin(MOST_PIXELS, (rect().width() - 2 * MARGIN) / widest);
    SpinePicture picture = myPicture;
    picture.setColors(windowColors());
    picture.paintPiece(&painter, QRectF(rect()).adjusted(MARGIN, buttonSize().height(), -MARGIN, 0), scale);
}
