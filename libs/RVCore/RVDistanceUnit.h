#ifndef RVDISTANCEUNIT_H
#define RVDISTANCEUNIT_H

#include "RVCoreExport.h"

class QDebug;
class QString;

/// The units and their codes, each with its text. @ingroup platform
enum RVDistanceUnitEnum : qint32 {
    DISTANCE_UNIT_TENTH_MILLIMETRE = 1, ///< "0.1mm", the base unit
    DISTANCE_UNIT_MILLIMETRE = 2, ///< "mm"
    DISTANCE_UNIT_INCH = 4, ///< "inch"
    DISTANCE_UNIT_CENTIMETRE = 8, ///< "cm"
    DISTANCE_UNIT_POINT = 16, ///< "pt", 1/72 inch
};

/// A unit of length. Every length is stored in the base unit, a tenth of a millimetre.
/// @par Example
/// @snippet tst_examples_platform.cpp RVDistanceUnit
/// @ingroup platform
class RVCORE_EXPORT RVDistanceUnit
{
public:
    /// One of the known units.
    constexpr RVDistanceUnit(RVDistanceUnitEnum unit) noexcept : myCode(unit) { }
    /// Keeps an unknown code, which converts nothing.
    constexpr RVDistanceUnit(int code) noexcept : myCode(code) { }
    /// From "mm", "cm", "inch" or "in", "pt" or "point", "0.1mm"; any other text is millimetres.
    RVDistanceUnit(const QString &text);

    constexpr int code() const noexcept { return myCode; } ///< The code in RVDistanceUnitEnum, or the unknown code.

    /// @p units of this unit in the base unit. With an unknown code the number is returned unchanged, with a warning in
    /// the message log.
    constexpr qreal units2Pixels(qreal units) const
    {
        switch (myCode) {
        case DISTANCE_UNIT_TENTH_MILLIMETRE:
            return units;
        case DISTANCE_UNIT_MILLIMETRE:
            return units * 10;
        case DISTANCE_UNIT_INCH:
            return units * 254;
        case DISTANCE_UNIT_CENTIMETRE:
            return units * 100;
        case DISTANCE_UNIT_POINT:
            return units * (254.0 / 72.0);
        default:
            warnUnsupported();
            return units;
        }
    }

    /// By code.
    /// @{
    friend constexpr bool operator==(RVDistanceUnit a, RVDistanceUnit b) noexcept { return a.myCode == b.myCode; }
    friend constexpr bool operator!=(RVDistanceUnit a, RVDistanceUnit b) noexcept { return !(a == b); }
    friend constexpr size_t qHash(RVDistanceUnit unit, size_t seed = 0) noexcept
    {
        return seed ^ unsigned(unit.myCode);
    }
    /// @}

private:
    void warnUnsupported() const;

    int myCode;
};

Q_DECLARE_TYPEINFO(RVDistanceUnit, Q_RELOCATABLE_TYPE);

/// Prints the name of the enumerator, such as DISTANCE_UNIT_INCH. @relates RVDistanceUnit
RVCORE_EXPORT QDebug operator<<(QDebug debug, RVDistanceUnitEnum unit);

#endif
