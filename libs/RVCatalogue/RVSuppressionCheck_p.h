#ifndef RVSUPPRESSIONCHECK_P_H
#define RVSUPPRESSIONCHECK_P_H

#include "RVSuppression_p.h"

class RVFindingReport;

/// Finds comments that silence nothing, and names of unknown rules.
class RVSuppressionCheck
{
public:
    /// @p report outlives the check.
    explicit RVSuppressionCheck(RVFindingReport *report) : myReport(report) { }

    /// @p broken are the rules that are broken in the element of the comment.
    void check(const RVSuppression &comment, const RVCatalogueRuleSet &broken);

private:
    void checkUse(const RVSuppression &comment, const RVCatalogueRuleSet &broken);
    void checkNames(const RVSuppression &comment);

    RVFindingReport *myReport;
};

#endif
