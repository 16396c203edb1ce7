#include "RVGroupSilence_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVSuppressionCheck_p.h"

void RVGroupSilence::add(const std::vector<RVSuppressionScope::Pointer> &closed)
{
    myClosed.insert(myClosed.end(), closed.begin(), closed.end());
    std::vector<RVSuppressionScope::Pointer> waiting;
    for (RVSuppressionScope::Pointer &scope : myClosed) {
        // A thread may judge the last product and release it at any time, so the references are counted first: if this
        // is the only one, nothing is judged later.
        const bool isShared = scope->ref.loadAcquire() > 1;
        if (scope->isJudged())
            judge(*scope);
        // A scope whose last products were skipped would wait forever.
        else if (isShared)
            waiting.push_back(scope);
        scope.reset(); // releases the outer scope, which comes later
    }
    myClosed.swap(waiting);
}

void RVGroupSilence::judge(const RVSuppressionScope &scope)
{
    const RVCatalogueProduct none;
    RVFindingReport report(myCheck, none);
    for (const RVSuppression &comment : scope.comments())
        RVSuppressionCheck(&report).check(comment, scope.broken());
    RVCatalogueRuleSet broken;
    for (const RVCatalogueFinding &finding : report.sorted()) {
        const RVCatalogueRuleId rule = RVCatalogueRuleRow::of(finding.rule())->id;
        broken.set(std::size_t(rule));
        if (!scope.outer() || !scope.outer()->silences(rule))
            myFindings += finding;
    }
    if (scope.outer())
        scope.outer()->judge(broken);
}
