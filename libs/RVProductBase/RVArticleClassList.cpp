#include "RVArticleClassList.h"

#include "RVKomma_p.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

RVArticleClassList RVArticleClassList::parseArticleClasses(const QString &text)
{
    RVArticleClassList result;
    const QStringList pieces = text.split(KOMMA, Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const RVArticleClass articleClass(piece);
        if (!articleClass.isNull())
            result += articleClass;
    }
    return result;
}

RVArticleClassList RVArticleClassList::filter(const RVArticleClass &articleClass) const
{
    RVArticleClassList result;
    std::copy_if(begin(), end(), std::back_inserter(result),
                 [&](const RVArticleClass &element) { return element.matches(articleClass); });
    return result;
}
