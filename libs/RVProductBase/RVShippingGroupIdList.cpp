#include "RVShippingGroupIdList.h"

#include <algorithm>
#include <iterator>

RVShippingGroupIdList::RVShippingGroupIdList(const QList<RVShippingGroupId> &ids) : QList(ids) { }

RVShippingGroupIdList::RVShippingGroupIdList(const QList<int> &ids) : QList(ids.begin(), ids.end()) { }

RVShippingGroupIdList::~RVShippingGroupIdList() = default;

RVShippingGroupIdList RVShippingGroupIdList::filter(const RVShippingGroupId &id, bool equal) const
{
    RVShippingGroupIdList result;
    std::copy_if(begin(), end(), std::back_inserter(result),
                 [&](const RVShippingGroupId &element) { return (element == id) == equal; });
    return result;
}
