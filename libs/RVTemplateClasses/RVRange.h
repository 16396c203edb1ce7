#ifndef RVRANGE_H
#define RVRANGE_H

#include <QDataStream>
#include <QHashFunctions>

#include <type_traits>

/**
 * A closed interval of numbers, both bounds inclusive.
 *
 * A range with max < min is invalid and contains nothing. [0, 0] doubles as "not yet set" for expandTo().
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVRange
 *
 * @ingroup templates
 */
template<typename T>
class Q_DECL_EXPORT RVRange
{
    static_assert(std::is_integral_v<T> && sizeof(T) <= sizeof(qint32), "center() adds the bounds in 64 bits");

public:
    T min = 0; ///< The lower bound, part of the range.
    T max = 0; ///< The upper bound, part of the range.

    RVRange() noexcept = default; ///< [0, 0]
    /// Any two bounds, also in the wrong order.
    RVRange(T lowest, T highest) noexcept : min(lowest), max(highest) { }
    RVRange(const RVRange &) noexcept = default;
    RVRange(RVRange &&) noexcept = default;
    RVRange &operator=(const RVRange &) noexcept = default;
    RVRange &operator=(RVRange &&) noexcept = default;

    // The order of the virtual operations is part of the binary interface. The composite ones go through the virtual
    // isValid() and contains(value), so a subclass that redefines those two changes them too.
    virtual ~RVRange() = default;

    /// Compares both bounds.
    /// @{
    virtual bool operator==(const RVRange &other) const { return min == other.min && max == other.max; }
    virtual bool operator!=(const RVRange &other) const { return !(*this == other); }
    /// @}
    /// Compares the lower bound, then the upper bound; invalid ranges sort after all valid ones.
    virtual bool operator<(const RVRange &other) const;
    /// Grows just enough to contain @p value. [0, 0] counts as empty and becomes [value, value]. An invalid range is
    /// not repaired: at most one bound moves, the upper one first.
    virtual void expandTo(const T &value);
    /// Half of min + max, truncated toward zero: -1 for [-3, 0].
    virtual T center() const { return T((qint64(min) + qint64(max)) / 2); }
    virtual bool isValid() const { return max >= min; } ///< True also for a single value.
    /// True for the bounds and all between them.
    virtual bool contains(const T &value) const { return min <= value && value <= max; }
    /// True when both bounds of @p other lie in this range.
    virtual bool contains(const RVRange &other) const { return contains(other.min) && contains(other.max); }
    /// True when the ranges share a value; touching at one bound is enough.
    virtual bool intersects(const RVRange &other) const;

    /// By both bounds.
    friend size_t qHash(const RVRange &range, size_t seed = 0) noexcept
    {
        return qHashMulti(seed, range.min, range.max);
    }
    /// Writes and reads the lower bound, then the upper one.
    /// @{
    friend QDataStream &operator<<(QDataStream &stream, const RVRange &range)
    {
        return stream << range.min << range.max;
    }
    friend QDataStream &operator>>(QDataStream &stream, RVRange &range) { return stream >> range.min >> range.max; }
    /// @}
};

template<typename T>
bool RVRange<T>::operator<(const RVRange &other) const
{
    if (!isValid())
        return false;
    if (!other.isValid())
        return true;
    return min != other.min ? min < other.min : max < other.max;
}

template<typename T>
void RVRange<T>::expandTo(const T &value)
{
    const T bound = value; // the argument may be one of our own bounds
    if (min == 0 && max == 0)
        min = max = bound;
    else if (bound > max)
        max = bound;
    else if (bound < min)
        min = bound;
}

template<typename T>
bool RVRange<T>::intersects(const RVRange &other) const
{
    return contains(other.min) || contains(other.max) || other.contains(min) || other.contains(max);
}

#endif
