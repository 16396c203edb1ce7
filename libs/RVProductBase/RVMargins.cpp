#include "RVMargins.h"

#include <QDebug>

using namespace Qt::StringLiterals;

RVMargins::RVMargins() : RVMargins(0, 0, 0, 0) { }

RVMargins::RVMargins(int top, int bottom, int left, int right) : d(new RVMarginsImpl(top, bottom, left, right)) { }

RVMargins::RVMargins(int vertical, int horizontal) : RVMargins(vertical, vertical, horizontal, horizontal) { }

const RVMarginsImpl &RVMargins::none() noexcept
{
    static const auto &margins = *new RVMarginsImpl;
    return margins;
}

QDebug operator<<(QDebug debug, const RVMargins &margins)
{
    return debug << u"RVMargins: left:"_s << margins.left() << u"top:"_s << margins.top() << u"right:"_s
                 << margins.right() << u"bottom:"_s << margins.bottom();
}
