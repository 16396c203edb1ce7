#include "AxisTicks.h"

#include <cmath>

namespace {

/// The smallest of 1, 2, 5 and 10 times a power of ten that is no smaller than the wish.
qreal roundStep(qreal wish)
{
    const qreal power = std::pow(10.0, std::floor(std::log10(wish)));
    for (const qreal factor : { 1.0, 2.0, 5.0 }) {
        if (wish <= factor * power)
            return factor * power;
    }
    return 10.0 * power;
}

}

AxisTicks::AxisTicks(qreal lowest, qreal highest, int wanted, qreal smallestStep)
    : myStep(roundStep(qMax(std::abs(highest - lowest) / qMax(1, wanted), smallestStep))),
      myFirst(std::floor(qMin(lowest, highest) / myStep) * myStep),
      myLast(std::ceil(qMax(lowest, highest) / myStep) * myStep)
{ }

QList<qreal> AxisTicks::values(qreal from, qreal to) const
{
    constexpr qreal tolerance = 1e-6; // of a step: sums of tenths are not exact
    QList<qreal> result;
    const qreal first = std::ceil(from / myStep - tolerance);
    const qreal count = std::floor(to / myStep + tolerance) - first;
    for (int i = 0; i <= count; ++i)
        result += (first + i) * myStep;
    return result;
}

QString AxisTicks::text(qreal value, const QLocale &locale) const
{
    const int digits = qMax(0, -int(std::floor(std::log10(myStep) + 1e-9)));
    return locale.toString(value == 0.0 ? 0.0 : value, 'f', digits);
}
