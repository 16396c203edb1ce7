#ifndef RVDUPLICATES_P_H
#define RVDUPLICATES_P_H

#include "RVCatalogueCheck.h"
#include "RVCatalogueFinding.h"
#include "RVFirstLines_p.h"

#include <QList>

class RVCatalogueProduct;
class RVFindingReport;

/// Finds types and article ids that occur twice in a file. Photo book codes are reduced to their family first. A type
/// is known by its hash, which has 64 bits.
class RVDuplicates
{
public:
    explicit RVDuplicates(const RVCatalogueCheck &check) : myCheck(check) { }

    /// Findings about ids that an earlier product has. Call it once for each product, in the order of the file.
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &product);

private:
    void checkType(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report);
    void checkArticleId(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report);

    RVCatalogueCheck myCheck;
    RVFirstLines<quint64> myTypes;
    RVFirstLines<quint32> myArticleIds;
};

#endif
