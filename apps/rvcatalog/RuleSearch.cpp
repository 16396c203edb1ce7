#include "RuleSearch.h"

#include <RVNearestText.h>

using namespace Qt::StringLiterals;

QString noRuleText(const QString &name)
{
    constexpr int limit = 4; // more changes are no typing mistake
    RVNearestText nearest(name, limit);
    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        nearest.offer(rule.name());
    const QString hint = nearest.text().isNull() ? u"\"rvcatalog explain\" lists them"_s
                                                 : u"did you mean \"%1\"?"_s.arg(nearest.text());
    return u"there is no rule \"%1\"; %2"_s.arg(name, hint);
}
