#include "RVProductArrangement.h"

#include "RVEnumerators.h"
#include "RVKeywords_p.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVProductArrangementEnum>;

namespace {

// clang-format off
constexpr RVKeyword<RVProductArrangementEnum> KEYWORDS[] = {
    { u"trivial", PRODUCT_ARRANGEMENT_TRIVIAL },
    { u"gift", PRODUCT_ARRANGEMENT_GIFT },
    { u"card", PRODUCT_ARRANGEMENT_CARD },
    { u"photobook", PRODUCT_ARRANGEMENT_PHOTOBOOK },
    { u"calendar", PRODUCT_ARRANGEMENT_CALENDAR },
};
// clang-format on

}

RVProductArrangement::RVProductArrangement(RVProductArrangementEnum value) noexcept : RVEnumWrapper(value) { }

RVProductArrangement::RVProductArrangement(const QString &text) : RVProductArrangement()
{
    setValue(text);
}

void RVProductArrangement::fillTable(RVEnumToStringTable<RVProductArrangementEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVProductArrangement &arrangement)
{
    return rvDebugAttribute(debug, "RVProductArrangement", arrangement);
}

QDebug operator<<(QDebug debug, RVProductArrangementEnum value)
{
    return debug << RVEnumerators<RVProductArrangementEnum>::text(value).constData();
}
