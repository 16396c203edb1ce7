#ifndef RVARTICLECLASSLIST_H
#define RVARTICLECLASSLIST_H

#include "RVArticleClass.h"
#include "RVProductBaseExport.h"

#include <QList>

/// Article classes, in the order in which they were given; duplicates stay.
/// @par Example
/// @snippet tst_examples_articles.cpp RVArticleClassList
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVArticleClassList : public QList<RVArticleClass>
{
public:
    /// From keywords separated by ","; a keyword that stands for no class is left out.
    static RVArticleClassList parseArticleClasses(const QString &text);

    /// The elements that have a bit of @p articleClass.
    RVArticleClassList filter(const RVArticleClass &articleClass) const;
};

#endif
