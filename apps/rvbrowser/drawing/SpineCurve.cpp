#include "SpineCurve.h"

#include "AccessibleSpineCurve.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

using namespace Qt::StringLiterals;

namespace {

/// The rows of a page up or down.
constexpr int PAGE_STEP = 10;

}

SpineCurve::SpineCurve(QWidget *parent) : DrawingWidget(tr("Spine cur&ve"), parent)
{
    AccessibleSpineCurve::install();
    setObjectName(u"spineCurve"_s);
    setAccessibleName(tr("Spine width over the page count"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SpineCurve::setTable(const SpineTable &table, const QString &title)
{
    myPlot = SpinePlot(table);
    myPlot.setLocale(QLocale());
    myTitle = title;
    myRow = -1;
    myRowUnderMouse = -1;
    update();
}

void SpineCurve::setRow(int row)
{
    myRow = row < table().rowCount() ? row : -1;
    setAccessibleDescription(reading());
    QAccessibleValueChangeEvent event(this, AccessibleSpineCurve(this).currentValue());
    QAccessible::updateAccessibility(&event);
    update();
}

QString SpineCurve::reading() const
{
    return myRow < 0 ? QString() : myPlot.reading(myRow);
}

std::unique_ptr<Drawing> SpineCurve::drawing() const
{
    auto plot = std::make_unique<SpinePlot>(table());
    plot->setLocale(QLocale());
    plot->setTitle(myTitle);
    return plot;
}

bool SpineCurve::event(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        setRowUnderMouse(-1);
    return DrawingWidget::event(event);
}

void SpineCurve::paintEvent(QPaintEvent *)
{
    SpinePlot plot = myPlot;
    plot.setColors(windowColors());
    plot.setMarkedRow(myRow);
    plot.setRowUnderCrossHair(myRowUnderMouse >= 0 || !hasFocus() ? myRowUnderMouse : myRow);
    QPainter painter(this);
    plot.paint(&painter, rect());
    if (!hasFocus())
        return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    frame.backgroundColor = palette().color(QPalette::Base);
    frame.state |= QStyle::State_KeyboardFocusChange;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

// The keys of a slider. Rows beside the table stand for its first and last one.
std::optional<int> SpineCurve::rowAfter(int key) const
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return myRow - 1;
    case Qt::Key_Right:
    case Qt::Key_Up:
        return myRow + 1;
    case Qt::Key_PageDown:
        return myRow - PAGE_STEP;
    case Qt::Key_PageUp:
        return myRow + qMin(PAGE_STEP, table().rowCount() - 1 - myRow); // A row far behind the last one may be no int.
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return table().rowCount();
    default:
        return std::nullopt;
    }
}

void SpineCurve::keyPressEvent(QKeyEvent *event)
{
    const std::optional<int> row = rowAfter(event->key());
    if (!row || event->modifiers() != Qt::NoModifier || table().rowCount() == 0)
        return DrawingWidget::keyPressEvent(event);
    setRowUnderMouse(-1); // The cross hair follows the keys.
    Q_EMIT rowWanted(qBound(0, *row, table().rowCount() - 1));
}

void SpineCurve::mousePressEvent(QMouseEvent *event)
{
    const int row = myPlot.rowAt(event->position(), rect(), this);
    if (event->button() == Qt::LeftButton && row >= 0)
        Q_EMIT rowWanted(row);
    else
        DrawingWidget::mousePressEvent(event);
}

void SpineCurve::mouseMoveEvent(QMouseEvent *event)
{
    setRowUnderMouse(myPlot.rowAt(event->position(), rect(), this));
}

void SpineCurve::setRowUnderMouse(int row)
{
    if (row == myRowUnderMouse)
        return;
    myRowUnderMouse = row;
    update();
}
