#include "WheelGuard.h"

#include <QEvent>

WheelGuard::WheelGuard(QWidget *control) : QObject(control)
{
    // The wheel would give the focus as well.
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const auto *control = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::Wheel || !control || control->hasFocus())
        return false;
    event->ignore();
    return true;
}
