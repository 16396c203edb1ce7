#ifndef RVSATURATION_P_H
#define RVSATURATION_P_H

#include <QtGlobal>

#include <limits>

/// Catalogue arithmetic is done in 64 bits, and these functions saturate the results, so that no input can overflow.
constexpr int rvSaturated(qint64 value) noexcept
{
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    return int(value < lowest ? lowest : value > highest ? highest : value);
}

/// Truncates toward zero; NaN becomes 0.
constexpr int rvSaturated(qreal value) noexcept
{
    constexpr qreal lowest = std::numeric_limits<int>::min();
    constexpr qreal highest = std::numeric_limits<int>::max();
    if (value != value)
        return 0;
    return int(value < lowest ? lowest : value > highest ? highest : value);
}

#endif
