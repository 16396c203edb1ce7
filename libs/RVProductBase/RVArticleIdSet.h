#ifndef RVARTICLEIDSET_H
#define RVARTICLEIDSET_H

#include "RVArticleId.h"
#include "RVProductBaseExport.h"

#include <QSet>

/// A set of articles.
/// @par Example
/// @snippet tst_examples_articles.cpp RVArticleIdSet
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVArticleIdSet : public QSet<RVArticleId>
{
public:
    /// The empty set.
    RVArticleIdSet() = default;
    /// Shares the data of @p ids.
    RVArticleIdSet(const QSet<RVArticleId> &ids);
    RVArticleIdSet(const RVArticleIdSet &) = default;
    RVArticleIdSet(RVArticleIdSet &&) = default;
    RVArticleIdSet &operator=(const RVArticleIdSet &) = default;
    RVArticleIdSet &operator=(RVArticleIdSet &&) = default;
    virtual ~RVArticleIdSet();

    /// True when every article of @p other is in this set too; always for an empty @p other.
    bool extends(const RVArticleIdSet &other) const;
};

#endif
