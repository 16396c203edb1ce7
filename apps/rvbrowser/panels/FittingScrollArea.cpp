#include "FittingScrollArea.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>

FittingScrollArea::FittingScrollArea(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
}

void FittingScrollArea::setLeastHeight(int height)
{
    myLeastHeight = height;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // the focus is for what is in it, which then comes into sight
    fit();
}

QSize FittingScrollArea::sizeHint() const
{
    return myLeastHeight ? QSize(minimumSizeHint().width(), contentSize().height()) : QScrollArea::sizeHint();
}

QSize FittingScrollArea::minimumSizeHint() const
{
    if (!myLeastHeight || !widget() || !widget()->layout())
        return QScrollArea::minimumSizeHint();
    const int height = contentSize().height();
    const int bar = height > *myLeastHeight ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    return { widget()->layout()->totalMinimumSize().width() + bar, qMin(height, *myLeastHeight) };
}

bool FittingScrollArea::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return QScrollArea::eventFilter(watched, event);
}

void FittingScrollArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

QSize FittingScrollArea::contentSize() const
{
    const QLayout *layout = widget() ? widget()->layout() : nullptr;
    if (!layout)
        return QSize();
    const QSize least = layout->totalMinimumSize();
    const int width = qMax(viewport()->width(), least.width());
    return { width, layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width) : least.height() };
}

// A resizable widget of QScrollArea is as high as it would like to be, which here is higher than it need be.
void FittingScrollArea::fit()
{
    const QSize size = contentSize();
    if (!size.isValid())
        return;
    widget()->resize(size.width(), qMax(size.height(), viewport()->height()));
    if (myLeastHeight)
        setMaximumHeight(size.height());
}
