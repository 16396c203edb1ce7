#ifndef RVDUPLICATES_P_H
#define RVDUPLICATES_P_H

#include "RVCatalogueCheck.h"
#include "RVCatalogueFinding.h"
#include "RVFirstLines_p.h"

#include <QList>

class RVCatalogueProduct;
class RVFindingReport;

/// What may come only once in a file: types, after photo book codes are reduced to their family, and article ids. A
/// type is known by its hash, which has 64 bits.
class RVDuplicates
{
public:
    explicit RVDuplicates(const RVCatalogueCheck &check) : myCheck(check) { }

    /// What an earlier product has already. To be asked for each product once, in the order of the file.
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &product);

private:
    void checkType(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report);
    void checkArticleId(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report);

    RVCatalogueCheck myCheck;
    RVFirstLines<quint64> myTypes;
    RVFirstLines<quint32> myArticleIds;
};

#endif
