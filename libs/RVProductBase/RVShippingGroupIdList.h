#ifndef RVSHIPPINGGROUPIDLIST_H
#define RVSHIPPINGGROUPIDLIST_H

#include "RVProductBaseExport.h"
#include "RVShippingGroupId.h"

#include <QList>

/// Shipping groups, in the order in which they were given; duplicates stay.
/// @par Example
/// @snippet tst_examples_articles.cpp RVShippingGroupIdList
/// @ingroup pricing
class RVPRODUCTBASE_EXPORT RVShippingGroupIdList : public QList<RVShippingGroupId>
{
public:
    RVShippingGroupIdList() = default; ///< The empty list.
    /// Shares the data of @p ids.
    RVShippingGroupIdList(const QList<RVShippingGroupId> &ids);
    RVShippingGroupIdList(const QList<int> &ids); ///< One group for each number.
    RVShippingGroupIdList(const RVShippingGroupIdList &) = default;
    RVShippingGroupIdList(RVShippingGroupIdList &&) = default;
    RVShippingGroupIdList &operator=(const RVShippingGroupIdList &) = default;
    RVShippingGroupIdList &operator=(RVShippingGroupIdList &&) = default;
    virtual ~RVShippingGroupIdList();

    /// All occurrences of @p id, or all others if @p equal is false.
    RVShippingGroupIdList filter(const RVShippingGroupId &id, bool equal) const;
};

#endif
