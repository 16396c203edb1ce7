#ifndef RVANGLE_H
#define RVANGLE_H

#include <QtGlobal>

/// An angle in degrees. The default is 0, the null angle.
/// @par Example
/// @snippet tst_examples_platform.cpp RVAngle
/// @ingroup platform
class RVAngle
{
public:
    /// @p degrees may be negative or beyond a full turn.
    constexpr RVAngle(qreal degrees = 0) noexcept : myDegrees(degrees) { }

    /// True for 0, including rounding errors of up to 1e-12 degrees to either side.
    constexpr bool isNull() const noexcept { return qFuzzyIsNull(myDegrees); }

private:
    qreal myDegrees;
};

Q_DECLARE_TYPEINFO(RVAngle, Q_RELOCATABLE_TYPE);

#endif
