#include "RVFindingReport_p.h"

#include "RVCatalogueCheck.h"

#include <algorithm>

void RVFindingReport::add(RVCatalogueRuleId rule, const RVCatalogueElement &element, const QString &text)
{
    add(rule, element, QLatin1StringView(), text);
}

void RVFindingReport::add(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute,
                          const QString &text)
{
    const RVCatalogueRule broken = RVCatalogueRuleRow::rule(rule);
    if (!myCheck.isEnabled(broken))
        return;
    const RVFileRange range = attribute.isEmpty() ? element.range() : element.attributeRange(attribute);
    myFindings += RVCatalogueFinding(broken, range, text, myProduct);
}

QList<RVCatalogueFinding> RVFindingReport::sorted() const
{
    QList<RVCatalogueFinding> result = myFindings;
    std::stable_sort(result.begin(), result.end(), [](const RVCatalogueFinding &a, const RVCatalogueFinding &b) {
        return a.range().begin < b.range().begin;
    });
    return result;
}

QString rvLineOf(const RVCatalogueElement &element)
{
    return QString::number(element.position().line);
}
