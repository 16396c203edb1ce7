#ifndef RVORDERIDLIST_H
#define RVORDERIDLIST_H

#include "RVOrderId.h"
#include "RVProductBaseExport.h"

#include <QList>

/// Order ids, in the order in which they were given.
/// @par Example
/// @snippet tst_examples_articles.cpp RVOrderIdList
/// @ingroup pricing
class RVPRODUCTBASE_EXPORT RVOrderIdList : public QList<RVOrderId>
{
public:
    /// The valid ids joined with ","; empty if there are none.
    QString toString() const;
};

#endif
