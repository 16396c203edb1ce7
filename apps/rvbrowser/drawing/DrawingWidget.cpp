#include "DrawingWidget.h"

#include "DrawingMenu.h"
#include "PaletteColors.h"

#include <SpinePlot.h>

#include <QContextMenuEvent>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ICON_SIZE(12, 12);

}

DrawingWidget::DrawingWidget(const QString &title, QWidget *parent)
    : QWidget(parent),
      myMenu(new DrawingMenu(title, this)),
      myButton(new QToolButton(this))
{
    myMenu->menuAction()->setEnabled(false);
    myButton->setObjectName(u"drawingButton"_s);
    myButton->setAutoRaise(true);
    // The keyboard has the menu of the window, and the context menu of what has the focus.
    myButton->setFocusPolicy(Qt::NoFocus);
    myButton->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    myButton->setIconSize(ICON_SIZE);
    myButton->setToolTip(tr("Copy, save or print this drawing"));
    myButton->setAccessibleName(tr("Copy, save or print: %1").arg(QString(title).remove(u'&')));
    connect(myButton, &QToolButton::clicked, this,
            [this] { myMenu->popup(myButton->mapToGlobal(myButton->rect().bottomLeft())); });
}

void DrawingWidget::contextMenuEvent(QContextMenuEvent *event)
{
    myMenu->popup(event->globalPos());
}

void DrawingWidget::resizeEvent(QResizeEvent *)
{
    myButton->setGeometry(QRect(QPoint(width() - buttonSize().width(), 0), buttonSize()));
}

void DrawingWidget::showEvent(QShowEvent *)
{
    myMenu->menuAction()->setEnabled(true);
}

void DrawingWidget::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous()) // A window that is only minimised still has its drawings.
        myMenu->menuAction()->setEnabled(false);
}

QSize DrawingWidget::buttonSize() const
{
    return myButton->sizeHint();
}

PlotColors DrawingWidget::windowColors() const
{
    const PaletteColors shades(palette());
    return {
        shades.shade(0), // background
        shades.shade(1), // text
        shades.shade(0.2), // grid
        shades.shade(0.08), // band
        shades.accent(), // curve
        shades.shade(0.8), // marker
    };
}
