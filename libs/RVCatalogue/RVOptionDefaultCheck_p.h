#ifndef RVOPTIONDEFAULTCHECK_P_H
#define RVOPTIONDEFAULTCHECK_P_H

#include "RVCheckedOption_p.h"

class RVFindingReport;

/// Checks the preselected options of a product.
class RVOptionDefaultCheck
{
public:
    explicit RVOptionDefaultCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCheckedOptions &options, const RVOptionsByKey &byKey);

private:
    struct Key;

    void addTwice(const Key &key);
    void addMissing(const Key &key, bool hasDefaults);

    RVFindingReport *myReport;
};

#endif
