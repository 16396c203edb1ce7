#ifndef RVPRICECLASSCHECK_P_H
#define RVPRICECLASSCHECK_P_H

#include "RVCatalogueElement.h"

#include <QStringList>

class RVFindingReport;

/// Checks the price class of an add-on.
class RVPriceClassCheck
{
public:
    explicit RVPriceClassCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueElement &element, QLatin1StringView name);

private:
    void addUnknown(const RVCatalogueElement &element, QLatin1StringView name, const QString &code,
                    const QStringList &ownCodes);

    RVFindingReport *myReport;
};

#endif
