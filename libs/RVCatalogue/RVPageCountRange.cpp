#include "RVPageCountRange_p.h"

#include "RVProductChanges_p.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A modular inverse of @p factor: 1 less than its product with @p factor is a multiple of @p modulus. It may be below
/// 0, and is nearer to 0 than the modulus. The two have no common divisor.
qint64 inverse(qint64 factor, qint64 modulus)
{
    qint64 last = 0;
    qint64 result = 1;
    qint64 remainder = modulus;
    for (qint64 divisor = factor; divisor != 0;) {
        const qint64 quotient = remainder / divisor;
        remainder = std::exchange(divisor, remainder % divisor);
        last = std::exchange(result, last - quotient * result);
    }
    return last;
}

/// The last count of steps from @p from that is not above @p limit.
qint64 lastCount(qint64 from, qint64 limit, qint64 step)
{
    return limit < from ? from - step : from + (limit - from) / step * step;
}

}

RVPageCountRange RVPageCountRange::of(const RVPageCounts &counts)
{
    if (counts.isEmpty())
        return RVPageCountRange();
    return { counts.first(), counts.last(), counts.size() > 1 ? qint64(counts.at(1)) - counts.first() : 1 };
}

QString RVPageCountRange::text() const
{
    if (size() <= 1)
        return QString::number(from);
    if (size() == 2)
        return QString::number(from) + ", "_L1 + QString::number(to);
    if (step == 1)
        return QString::number(from) + u'-' + QString::number(to);
    return RVChangeText::tr("%1-%2 by %3").arg(from).arg(to).arg(step);
}

QJsonObject RVPageCountRange::json() const
{
    return { { u"from"_s, from }, { u"step"_s, size() > 1 ? step : 0 }, { u"to"_s, to } };
}

// The Chinese remainder theorem gives the result for two steps. Neither is 0, which linters do not see.
RVPageCountRange rvCommonCounts(const RVPageCountRange &a, const RVPageCountRange &b)
{
    if (a.isEmpty() || b.isEmpty())
        return RVPageCountRange();
    const qint64 divisor = std::gcd(a.step, b.step);
    if (divisor == 0 || (b.from - a.from) % divisor != 0)
        return RVPageCountRange();
    const qint64 modulus = std::max(b.step / divisor, qint64(1));
    const qint64 distance = (b.from - a.from) / divisor;
    const qint64 steps = (distance * inverse(a.step / divisor, modulus) % modulus + modulus) % modulus;
    const qint64 step = std::max(a.step * modulus, qint64(1));
    const qint64 first = a.from + steps * a.step;
    const qint64 from = first + std::max(b.from - first + step - 1, qint64(0)) / step * step;
    return { from, lastCount(from, std::min(a.to, b.to), step), step };
}

QList<RVPageCountRange> rvCountsWithout(const RVPageCountRange &a, const RVPageCountRange &b)
{
    const RVPageCountRange common = rvCommonCounts(a, b);
    if (common.isEmpty())
        return a.isEmpty() ? QList<RVPageCountRange>() : QList { a };
    QList<RVPageCountRange> result;
    if (a.from < common.from)
        result += { a.from, common.from - a.step, a.step };
    const qint64 gaps = common.size() - 1;
    const qint64 between = common.step / a.step - 1;
    if (gaps <= between) {
        for (qint64 i = 0; i < gaps; ++i) {
            const qint64 begin = common.from + i * common.step;
            result += { begin + a.step, begin + common.step - a.step, a.step };
        }
    } else {
        for (qint64 i = 1; i <= between; ++i) {
            const qint64 begin = common.from + i * a.step;
            result += { begin, begin + (gaps - 1) * common.step, common.step };
        }
    }
    if (common.to < a.to)
        result += { common.to + a.step, a.to, a.step };
    return result;
}
