#ifndef RVARTICLEVARIANTSLIST_H
#define RVARTICLEVARIANTSLIST_H

#include "RVArticleVariants.h"

#include <QList>

/// A list of configurations of an article, such as its orderable box styles.
/// @par Example
/// @snippet tst_examples_articles.cpp RVArticleVariantsList
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVArticleVariantsList : public QList<RVArticleVariants>
{
public:
    using QList<RVArticleVariants>::QList;
    /// The empty list.
    RVArticleVariantsList() = default;
    RVArticleVariantsList(const RVArticleVariantsList &) = default;
    RVArticleVariantsList(RVArticleVariantsList &&) = default;
    RVArticleVariantsList &operator=(const RVArticleVariantsList &) = default;
    RVArticleVariantsList &operator=(RVArticleVariantsList &&) = default;
    virtual ~RVArticleVariantsList();

    /// True when some element contains all options of @p variants.
    bool containsBoxStyle(const RVArticleVariants &variants) const;
};

#endif
