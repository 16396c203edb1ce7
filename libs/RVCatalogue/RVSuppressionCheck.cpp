#include "RVSuppressionCheck_p.h"

#include "RVCatalogueCheck.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVNearestText.h"

#include <RVSpineConfig.h>

using namespace Qt::StringLiterals;

namespace {

/// True if the rule can have findings: it is not disabled, and the program can check it.
bool canHaveFindings(const RVCatalogueCheck &check, RVCatalogueRule rule)
{
    const bool needsFonts = RVCatalogueRuleRow::of(rule)->id == RVCatalogueRuleId::SpineFontTooSmall;
    return check.isEnabled(rule) && (RVSpineConfig::canMeasureText() || !needsFonts);
}

/// The rules of the comment that could have findings, but have none.
QStringList unusedRules(const RVSuppression &comment, const RVCatalogueRuleSet &broken, const RVCatalogueCheck &check)
{
    QStringList result;
    const RVCatalogueRuleSet unused = comment.hasElement ? comment.rules & ~broken : comment.rules;
    for (const RVCatalogueRuleRow &row : RV_CATALOGUE_RULES) {
        if (unused.test(std::size_t(row.id)) && canHaveFindings(check, RVCatalogueRuleRow::rule(row.id)))
            result += row.name;
    }
    return result;
}

/// The nearest rule; none if half of the letters differ.
QString nearestRule(const QString &name)
{
    RVNearestText nearest(name, int(name.size() + 1) / 2);
    for (const RVCatalogueRuleRow &row : RV_CATALOGUE_RULES)
        nearest.offer(row.name);
    return nearest.text();
}

}

void RVSuppressionCheck::check(const RVSuppression &comment, const RVCatalogueRuleSet &broken)
{
    if (!comment.isReadable)
        return myReport->add(RVCatalogueRuleId::SuppressionUnknown, comment.range,
                             RVFindingText::tr("this comment is not understood; one that silences rules reads %1")
                                     .arg(R"("rvcatalog: ignore RULE, RULE")"_L1));
    checkNames(comment);
    checkUse(comment, broken);
}

void RVSuppressionCheck::checkUse(const RVSuppression &comment, const RVCatalogueRuleSet &broken)
{
    constexpr auto rule = RVCatalogueRuleId::SuppressionUnused;
    if (comment.rules.none() && comment.unknownNames.isEmpty())
        return myReport->add(rule, comment.range, RVFindingText::tr("this comment names no rule to silence"));
    const QString names = unusedRules(comment, broken, myReport->check()).join(", "_L1);
    if (names.isEmpty())
        return;
    const QString text = comment.hasElement
            ? RVFindingText::tr("this comment silences no finding of %1")
            : RVFindingText::tr("this comment silences no finding of %1, as no element follows it");
    myReport->add(rule, comment.range, text.arg(names));
}

void RVSuppressionCheck::checkNames(const RVSuppression &comment)
{
    for (const QString &name : comment.unknownNames) {
        const QString nearest = nearestRule(name);
        const QString text = nearest.isNull()
                ? RVFindingText::tr("there is no rule %1").arg(rvQuoted(name))
                : RVFindingText::tr("there is no rule %1; did you mean %2?").arg(rvQuoted(name), rvQuoted(nearest));
        myReport->add(RVCatalogueRuleId::SuppressionUnknown, comment.range, text);
    }
}
