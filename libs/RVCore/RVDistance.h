#ifndef RVDISTANCE_H
#define RVDISTANCE_H

#include "RVDistanceUnit.h"

#include <QtGlobal>

class QDataStream;
class QDebug;

/// A length, stored in tenths of a millimetre. The default is 0. Equality is fuzzy: about 12 digits count,
/// so there is no hash that equal lengths would share.
/// @par Example
/// @snippet tst_examples_platform.cpp RVDistance
/// @ingroup platform
class RVDistance
{
public:
    constexpr RVDistance() noexcept = default; ///< The length 0.
    /// @p amount of @p unit, by default in tenths of a millimetre.
    constexpr RVDistance(qreal amount, RVDistanceUnit unit = DISTANCE_UNIT_TENTH_MILLIMETRE)
        : myValue(unit.units2Pixels(amount))
    { }

    /// The length in the base unit, a tenth of a millimetre.
    constexpr qreal value() const noexcept { return myValue; }
    /// The length in @p unit; unconverted, with a warning in the message log, if the unit is unknown.
    constexpr qreal value(const RVDistanceUnit &unit) const { return myValue / unit.units2Pixels(1.0); }

    /// Calculates with the lengths, independent of their units.
    /// @{
    constexpr RVDistance &operator+=(RVDistance other) noexcept
    {
        myValue += other.myValue;
        return *this;
    }
    constexpr RVDistance &operator-=(RVDistance other) noexcept
    {
        myValue -= other.myValue;
        return *this;
    }
    constexpr RVDistance &operator*=(qreal factor) noexcept
    {
        myValue *= factor;
        return *this;
    }
    /// @}

    /// Calculates with the lengths, independent of their units.
    /// @{
    friend constexpr RVDistance operator+(RVDistance a, RVDistance b) noexcept { return a += b; }
    friend constexpr RVDistance operator-(RVDistance a, RVDistance b) noexcept { return a -= b; }
    friend constexpr RVDistance operator*(RVDistance distance, qreal factor) noexcept { return distance *= factor; }
    /// @}
    /// Division by 0 gives an infinite length, or NaN for the length 0.
    friend constexpr RVDistance operator/(RVDistance distance, qreal divisor) noexcept
    {
        return RVDistance(distance.myValue / divisor);
    }

    /// Lengths that differ in the 13th digit are equal; 0 equals nothing but 0.
    /// @{
    friend bool operator==(RVDistance a, RVDistance b) noexcept { return qFuzzyCompare(a.myValue, b.myValue); }
    friend bool operator!=(RVDistance a, RVDistance b) noexcept { return !(a == b); }
    /// @}
    /// Compares the stored lengths exactly.
    friend constexpr bool operator<(RVDistance a, RVDistance b) noexcept { return a.myValue < b.myValue; }

    /// Writes and reads the length in tenths of a millimetre as a double.
    /// @{
    RVCORE_EXPORT friend QDataStream &operator<<(QDataStream &stream, RVDistance distance);
    RVCORE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVDistance &distance);
    /// @}

private:
    qreal myValue = 0.0;
};

Q_DECLARE_TYPEINFO(RVDistance, Q_RELOCATABLE_TYPE);

/// Prints the length in millimetres, such as RVDistance(12.5 mm). @relates RVDistance
RVCORE_EXPORT QDebug operator<<(QDebug debug, RVDistance distance);

#endif
