#ifndef RVINTRANGE_H
#define RVINTRANGE_H

#include "RVCoreExport.h"
#include "RVRange.h"

extern template class RVCORE_EXPORT RVRange<int>;

/// A closed interval of whole numbers that can be moved and scaled. Bounds stay within the int limits.
/// @par Example
/// @snippet tst_examples_platform.cpp RVIntRange
/// @ingroup platform
class RVCORE_EXPORT RVIntRange : public RVRange<int>
{
public:
    using RVRange<int>::RVRange;

    /// Both bounds moved by @p distance.
    RVIntRange shifted(int distance) const;
    /// Both bounds multiplied by @p factor.
    RVIntRange stretched(int factor) const;
};

Q_DECLARE_TYPEINFO(RVIntRange, Q_RELOCATABLE_TYPE);

#endif
