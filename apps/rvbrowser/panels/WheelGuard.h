#ifndef WHEELGUARD_H
#define WHEELGUARD_H

#include <QWidget>

/// Keeps the wheel from changing a control that does not have the focus: the wheel then scrolls the area around it.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the control and belongs to it.
    explicit WheelGuard(QWidget *control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
