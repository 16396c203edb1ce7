#include "RVIntRange.h"

#include <limits>

template class RVRange<int>;

namespace {

int saturated(qint64 value)
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max())));
}

}

RVIntRange RVIntRange::shifted(int distance) const
{
    return RVIntRange(saturated(qint64(min) + distance), saturated(qint64(max) + distance));
}

RVIntRange RVIntRange::stretched(int factor) const
{
    return RVIntRange(saturated(qint64(min) * factor), saturated(qint64(max) * factor));
}
