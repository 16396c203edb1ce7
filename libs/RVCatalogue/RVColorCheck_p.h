#ifndef RVCOLORCHECK_P_H
#define RVCOLORCHECK_P_H

#include "RVCatalogueElement.h"

class RVFindingReport;

/// Checks the colour of an option.
class RVColorCheck
{
public:
    explicit RVColorCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueElement &form);

private:
    void addInvalid(const RVCatalogueElement &form, const QString &color);

    RVFindingReport *myReport;
};

#endif
