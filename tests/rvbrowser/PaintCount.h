#ifndef PAINTCOUNT_H
#define PAINTCOUNT_H

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

#include <utility>

/// Counts how often a widget is painted.
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget *widget) { widget->installEventFilter(this); }

    /// True if the widget is painted because of what is done.
    template<typename Action>
    bool growsAfter(Action action) const
    {
        settle();
        const int before = myCount;
        action();
        return QTest::qWaitFor([this, before] { return myCount > before; }, 2000);
    }
    /// True if the widget is not painted because of what is done.
    template<typename Action>
    bool staysAfter(Action action) const
    {
        settle();
        const int before = myCount;
        action();
        settle();
        return myCount == before;
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        myCount += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    /// Until nothing more is to be painted.
    void settle() const
    {
        int before = -1;
        while (std::exchange(before, myCount) != myCount)
            QTest::qWait(50);
    }

    int myCount = 0;
};

#endif
