#include "RVSuppressionScope_p.h"

#include <utility>

RVSuppressionScope::RVSuppressionScope(std::vector<RVSuppression> comments, const Pointer &outer, std::size_t level)
    : myComments(std::move(comments)),
      myOuter(outer),
      myLevel(level)
{
    for (const RVSuppression &comment : myComments) {
        if (comment.hasElement)
            myRules |= comment.rules;
    }
    expect();
    if (!myOuter)
        return;
    myRules |= myOuter->myRules;
    myOuter->expect();
}

bool RVSuppressionScope::silences(RVCatalogueRuleId rule) const
{
    return myRules.test(std::size_t(rule));
}

void RVSuppressionScope::expect()
{
    const QMutexLocker locker(&myMutex);
    ++myExpected;
}

void RVSuppressionScope::judge(const RVCatalogueRuleSet &broken)
{
    addBroken(broken);
    const QMutexLocker locker(&myMutex);
    --myExpected;
}

void RVSuppressionScope::addBroken(const RVCatalogueRuleSet &broken)
{
    if (broken.none())
        return;
    for (RVSuppressionScope *scope = this; scope; scope = scope->myOuter.data()) {
        const QMutexLocker locker(&scope->myMutex);
        scope->myBroken |= broken;
    }
}

bool RVSuppressionScope::isJudged() const
{
    const QMutexLocker locker(&myMutex);
    return myExpected == 0;
}

RVCatalogueRuleSet RVSuppressionScope::broken() const
{
    const QMutexLocker locker(&myMutex);
    return myBroken;
}
