#include "RVMarginsImpl.h"

#include "RVSaturation_p.h"

RVMarginsImpl::RVMarginsImpl(int top, int bottom, int left, int right) noexcept
    : myTop(top),
      myBottom(bottom),
      myLeft(left),
      myRight(right)
{ }

QSize RVMarginsImpl::totalMarginWH() const noexcept
{
    return QSize(rvSaturated(qint64(myLeft) + myRight), rvSaturated(qint64(myTop) + myBottom));
}

bool RVMarginsImpl::allNull() const noexcept
{
    return *this == RVMarginsImpl();
}

bool RVMarginsImpl::operator==(const RVMarginsImpl &other) const noexcept
{
    return myTop == other.myTop && myBottom == other.myBottom && myLeft == other.myLeft && myRight == other.myRight;
}
