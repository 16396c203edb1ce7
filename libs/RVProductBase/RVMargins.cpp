#include "RVMargins.h"

#include <QDebug>

#include <type_traits>

using namespace Qt::StringLiterals;

RVMargins::RVMargins() : RVMargins(0, 0, 0, 0) { }

RVMargins::RVMargins(int top, int bottom, int left, int right) : d(new RVMarginsImpl(top, bottom, left, right)) { }

RVMargins::RVMargins(int vertical, int horizontal) : RVMargins(vertical, vertical, horizontal, horizontal) { }

const RVMarginsImpl &RVMargins::none() noexcept
{
    static_assert(std::is_trivially_destructible_v<RVMarginsImpl>, "it would not outlive its readers");
    static const RVMarginsImpl margins;
    return margins;
}

QDebug operator<<(QDebug debug, const RVMargins &margins)
{
    return debug << u"RVMargins: left:"_s << margins.left() << u"top:"_s << margins.top() << u"right:"_s
                 << margins.right() << u"bottom:"_s << margins.bottom();
}
