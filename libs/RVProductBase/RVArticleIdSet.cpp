#include "RVArticleIdSet.h"

RVArticleIdSet::RVArticleIdSet(const QSet<RVArticleId> &ids) : QSet(ids) { }

RVArticleIdSet::~RVArticleIdSet() = default;

bool RVArticleIdSet::extends(const RVArticleIdSet &other) const
{
    return other.size() <= size() && contains(other);
}
