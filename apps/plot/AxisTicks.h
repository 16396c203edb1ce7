#ifndef AXISTICKS_H
#define AXISTICKS_H

#include <QList>
#include <QLocale>
#include <QString>

/// Round values along an axis: multiples of 1, 2 or 5 times a power of ten, from at most the lowest to at least the
/// highest value that is shown.
class AxisTicks
{
public:
    /// Not much more than @p wanted steps, none smaller than @p smallestStep. The bounds may come in any order.
    AxisTicks(qreal lowest, qreal highest, int wanted, qreal smallestStep);

    qreal step() const { return myStep; }
    qreal first() const { return myFirst; } ///< At or below the lowest value.
    qreal last() const { return myLast; } ///< At or above the highest value.
    /// The round values between two bounds that are shown.
    QList<qreal> values(qreal from, qreal to) const;
    /// With as many digits as the step has.
    QString text(qreal value, const QLocale &locale) const;

private:
    qreal myStep;
    qreal myFirst;
    qreal myLast;
};

#endif
