#ifndef RVORDERIDLIST_H
#define RVORDERIDLIST_H

#include "RVOrderId.h"
#include "RVProductBaseExport.h"

#include <QList>

/// Order ids, in the order in which they were given.
class RVPRODUCTBASE_EXPORT RVOrderIdList : public QList<RVOrderId>
{
public:
    /// The valid ids joined with ",".
    QString toString() const;
};

#endif
