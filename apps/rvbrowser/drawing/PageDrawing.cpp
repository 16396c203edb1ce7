#include "PageDrawing.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

PageDrawing::PageDrawing(QWidget *parent) : DrawingWidget(tr("P&age"), parent)
{
    setObjectName(u"pageDrawing"_s);
    setAccessibleName(tr("Page with bleed, trim and barcodes, drawn to scale"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PageDrawing::setPage(const PageGeometry &geometry, const QString &name)
{
    myGeometry = geometry;
    myName = name;
    showPicture();
}

void PageDrawing::setPageNumber(int number)
{
    myNumber = number;
    showPicture();
}

void PageDrawing::showPicture()
{
    myPicture = PagePicture(myGeometry, myNumber);
    myPicture.setProductName(myName);
    setAccessibleDescription(myPicture.legend().join(u"; "_s));
    update();
}

bool PageDrawing::event(QEvent *event)
{
    const auto *help = event->type() == QEvent::ToolTip ? dynamic_cast<QHelpEvent *>(event) : nullptr;
    if (!help)
        return DrawingWidget::event(event);
    const int barcode = myPicture.barcodeAt(help->pos(), room(), QFontMetricsF(font(), this));
    if (barcode >= 0)
        QToolTip::showText(help->globalPos(), myPicture.barcodeText(myPicture.barcodes().at(barcode)), this);
    else
        QToolTip::hideText();
    return true;
}

QRectF PageDrawing::room() const
{
    return QRectF(rect()).adjusted(MARGIN, MARGIN, -MARGIN - buttonSize().width(), -MARGIN / 2);
}

void PageDrawing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    PagePicture picture = myPicture;
    picture.setColors(windowColors());
    picture.paintFitting(&painter, room());
}
